#include "ShippedDocuments.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QDir>

#include "DocumentFile.h"

namespace {

const char* const maximumSizeOption = "max-size";

} // namespace

QString ShippedDocuments::path(const QString& name)
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../share/unitmanager/" + name);
}

void ShippedDocuments::addMaximumSize(QCommandLineParser& parser)
{
    parser.addOption(
        {maximumSizeOption,
         QString("Largest document that is read; %1 when not given.").arg(DocumentFile::defaultLimit),
         "BYTES", QString::number(DocumentFile::defaultLimit)});
}

Result<int> ShippedDocuments::maximumSize(const QCommandLineParser& options)
{
    const std::optional<int> size = DocumentFile::limitFromText(options.value(maximumSizeOption));
    if (!size)
        return wrongUsage(
            QString("--max-size must be a number of bytes from 1 to %1").arg(DocumentFile::highestLimit));
    return *size;
}
