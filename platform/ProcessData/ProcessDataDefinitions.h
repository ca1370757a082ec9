#pragma once

/// The vocabulary of process data.
class ProcessDataDefinitions
{
public:
    /// What is wrong with a process value.
    enum ErrorTypes
    {
        ErrorTypeNone = 0,         ///< nothing: the value is good
        ErrorTypeOutOfRange = 1,   ///< measured outside the range of the sensor
        ErrorTypeSensor = 2,       ///< the sensor reports a fault
        ErrorTypeNotAvailable = 3, ///< there is no value, or it could not be read
    };
};
