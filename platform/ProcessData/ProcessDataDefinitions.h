#pragma once

/// Common definitions of process data.
class ProcessDataDefinitions
{
public:
    /// Kind of error of a process value.
    enum ErrorTypes
    {
        ErrorTypeNone = 0,         ///< no error: the value is good
        ErrorTypeOutOfRange = 1,   ///< measured outside the range of the sensor
        ErrorTypeSensor = 2,       ///< the sensor reports a fault
        ErrorTypeNotAvailable = 3, ///< there is no value, or it could not be read
    };
};
