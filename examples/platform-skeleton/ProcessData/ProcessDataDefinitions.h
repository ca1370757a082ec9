#pragma once

class ProcessDataDefinitions
{
public:
    /// The library uses the numbers 0 and 3.
    enum ErrorTypes
    {
        ErrorTypeNone = 0,
        ErrorTypeNotAvailable = 3
    };
};
