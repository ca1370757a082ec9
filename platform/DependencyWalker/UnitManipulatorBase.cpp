#include "UnitManipulatorBase.h"

UnitManipulatorBase::UnitManipulatorBase() = default;

UnitManipulatorBase::~UnitManipulatorBase() = default;
