#pragma once

#include <QtCore/QString>

#include <memory>

#include "UnitManagerDevice/UnitManagerWrapper.h"

/// Wrappers in all the ways in which they can be built.
namespace WrapperSetup {

/// Which names the constructor is given.
enum Names
{
    NoNames,
    DefaultUnitNames,
    AllNames
};
/// How configurations are read, as the constructors' flag says it.
enum Reading : bool
{
    Blocking = false,
    Asynchronous = true
};
/// How changes are noticed, as the constructors' flag says it.
enum Signals : bool
{
    Delivered = false,
    Polled = true
};

/// A wrapper, built by the constructor that takes these names.
std::unique_ptr<UnitManagerWrapper> create(Names names, Reading reading, Signals changeSignals);
/// A wrapper without service, which gives values as they are stored.
std::unique_ptr<UnitManagerWrapper> createUnused();
/// Calls init() with all names. @return its result.
bool init(UnitManagerWrapper& wrapper, Reading reading);
/// Calls init() with no names. @return its result.
bool initWithoutNames(UnitManagerWrapper& wrapper, Reading reading);

/// Calls checkInitialized() until it is true, without an event loop. @return false when a minute was not
/// enough.
bool waitForUnits(UnitManagerWrapper& wrapper);

/// Adds the columns "reading" and "changeSignals" with the four ways in which a wrapper can be driven.
void addModes();

} // namespace WrapperSetup
