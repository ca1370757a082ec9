#include "TestProgram.h"

#include <QtCore/QCoreApplication>
#include <QtTest/QTest>

#include <cstdio>
#include <map>
#include <string>

namespace {

std::map<std::string, TestProgram::Create>& classes()
{
    static std::map<std::string, TestProgram::Create> classes;
    return classes;
}

} // namespace

void TestProgram::add(const char* className, Create create)
{
    classes()[className] = create;
}

int main(int argc, char** argv)
{
    const auto found = argc < 2 ? classes().end() : classes().find(argv[1]);
    if (found == classes().end()) {
        std::fputs("The first argument must name a test class:\n", stderr);
        for (const auto& [name, create] : classes())
            std::fprintf(stderr, "  %s\n", name.c_str());
        return 2;
    }
    // Qt reads the name of the program from the first argument that it is given.
    argv[1] = argv[0];
    --argc;
    ++argv;
    QCoreApplication application(argc, argv);
    const std::unique_ptr<QObject> test = found->second();
    return QTest::qExec(test.get(), argc, argv);
}
