#pragma once

/// Exit codes of the program.
enum ExitCode
{
    /// Everything requested was printed.
    Succeeded = 0,
    /// A name, a document or a line of input was invalid.
    Failed = 1,
    /// The command line itself was invalid.
    WrongUsage = 2,
    /// For verbs whose answer may be 1: a document cannot be read.
    Unreadable = 2
};
