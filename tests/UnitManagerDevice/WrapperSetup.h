#pragma once

#include <QtCore/QString>

#include <memory>

#include "UnitManagerDevice/UnitManagerWrapper.h"

/// Creates wrappers in every possible configuration.
namespace WrapperSetup {

/// The names that are passed to the constructor.
enum Names
{
    NoNames,
    DefaultUnitNames,
    AllNames
};
/// How configurations are read, as in the constructors' flag.
enum Reading : bool
{
    Blocking = false,
    Asynchronous = true
};
/// How changes are detected, as in the constructors' flag.
enum Signals : bool
{
    Delivered = false,
    Polled = true
};

/// Creates a wrapper with the constructor that takes these names.
std::unique_ptr<UnitManagerWrapper> create(Names names, Reading reading, Signals changeSignals);
/// Creates a wrapper in the mode of the test's row; see addModes().
std::unique_ptr<UnitManagerWrapper> createInFetchedMode(Names names);
/// A wrapper without service, which returns values as stored.
std::unique_ptr<UnitManagerWrapper> createUnused();
/// Calls init() with all names. @return its result.
bool init(UnitManagerWrapper& wrapper, Reading reading);
/// Calls init() with no names. @return its result.
bool initWithoutNames(UnitManagerWrapper& wrapper, Reading reading);

/// Calls checkInitialized() until it returns true, without an event loop. @return false after a minute.
bool waitForUnits(UnitManagerWrapper& wrapper);

/// 1.5 bar in HectoPascal as the wrapper shows it.
QString shown(const UnitManagerWrapper& wrapper);
/// The result of shown() with units.
const QString converted = QStringLiteral("double 1500");
/// The result of shown() without units.
const QString asStored = QStringLiteral("double 1.5");

/// Adds the columns "reading" and "changeSignals" with the four modes of a wrapper.
void addModes();

} // namespace WrapperSetup
