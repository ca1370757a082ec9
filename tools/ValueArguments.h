#pragma once

#include <QtCore/QStringList>

#include "UnitWords.h"

class QCommandLineParser;

/// The arguments VALUE [TYPE] FROM [TO], and the options of the verbs that have them.
namespace ValueArguments {

/// Declares --raw, --json and --language.
void addOptions(QCommandLineParser& parser);
/// The help text about values, units and fixed units.
QString rules();

/// Reads VALUE. @return a failure if it is not a number
Result<double> value(const QStringList& arguments);
/// Reads the words after VALUE: a type and @p count units.
///
/// @return a failure if one is unknown, ambiguous or missing, or the options contradict each other
Result<UnitSelection> units(const UnitCatalogue& catalogue, int count, const QCommandLineParser& options,
                            const QStringList& arguments);

} // namespace ValueArguments
