#pragma once

/// Definitions of process data.
class ProcessDataDefinitions
{
public:
    /// Why a value is faulty. The library uses the numbers 0 and 3.
    enum ErrorTypes
    {
        ErrorTypeNone = 0,
        ErrorTypeOutOfRange = 1,
        ErrorTypeSensor = 2,
        ErrorTypeNotAvailable = 3
    };
};
