#pragma once

/// Exit codes of the programs.
enum ExitCode
{
    /// Everything requested was done.
    Succeeded = 0,
    /// A name, a document or a line of input was invalid, or a bus was not usable.
    Failed = 1,
    /// The command line itself was invalid.
    WrongUsage = 2,
    /// For verbs whose answer may be 1: a document cannot be read.
    Unreadable = 2
};
