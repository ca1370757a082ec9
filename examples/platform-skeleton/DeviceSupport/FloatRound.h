#pragma once

class FloatRound
{
public:
    static double roundValue(double value, unsigned int decimalPlaces);
};
