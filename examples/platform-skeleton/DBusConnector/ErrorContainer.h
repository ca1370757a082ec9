#pragma once

class ErrorContainer
{
public:
    ErrorContainer();
};
