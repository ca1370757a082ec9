#pragma once

#include <QtCore/QStringList>

#include "UnitCatalogue.h"

class QCommandLineParser;

/// The arguments VALUE TYPE FROM, and the options of the verbs that have them.
namespace ValueArguments {

/// The unit of the given value.
struct Source
{
    UnitType type;
    QString unit;
};

/// Declares --raw, --json and --language.
void addOptions(QCommandLineParser& parser);
/// The help text about values and fixed units.
QString rules();

/// Reads VALUE. @return a failure if it is not a number
Result<double> value(const QStringList& arguments);
/// Reads TYPE and FROM. @return a failure if one is unknown or missing, or the options contradict each other
Result<Source> source(const UnitCatalogue& catalogue, const QCommandLineParser& options,
                      const QStringList& arguments);

} // namespace ValueArguments
