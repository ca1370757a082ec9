#pragma once

/// What the program ends with.
enum ExitCode
{
    /// Everything asked for was printed.
    Succeeded = 0,
    /// A name, a document or a line of input was not usable.
    Failed = 1,
    /// The command line itself was wrong.
    WrongUsage = 2
};
