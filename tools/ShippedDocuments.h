#pragma once

#include <QtCore/QString>

#include "Result.h"

class QCommandLineParser;

/// What all verbs that read documents share.
namespace ShippedDocuments {

/// The path of a document that is installed with the program; it is fixed relative to the program's folder.
QString path(const QString& name);

/// Declares --max-size.
void addMaximumSize(QCommandLineParser& parser);
/// The value of --max-size in bytes. @return a failure if it is not valid
Result<int> maximumSize(const QCommandLineParser& options);

} // namespace ShippedDocuments
