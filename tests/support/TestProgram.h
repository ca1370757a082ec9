#pragma once

#include <QtCore/QObject>

#include <memory>

/// A program that contains several test classes and runs the one that its first argument names; the further
/// arguments are those of Qt Test:
///
///     UnitConversionTests FactoryTest -v2 createsEachClass
namespace TestProgram {

using Create = std::unique_ptr<QObject> (*)();

void add(const char* className, Create create);

} // namespace TestProgram

/// Adds a test class to the program that its source is linked to. A constant of this type is the last line of
/// the source:
///
///     const TestClass<FactoryTest> testClass;
template <typename Test>
class TestClass
{
public:
    TestClass()
    {
        TestProgram::add(Test::staticMetaObject.className(),
                         []() -> std::unique_ptr<QObject> { return std::make_unique<Test>(); });
    }
};
