#include "TestFiles.h"

#include <QtCore/QFile>
#include <QtCore/QSaveFile>

#include <cstdio>
#include <sys/stat.h>
#include <unistd.h>

namespace {

template <typename File>
bool fill(File& file, const QByteArray& bytes)
{
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

} // namespace

bool TestFiles::write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return fill(file, bytes) && file.flush();
}

bool TestFiles::replace(const QString& path, const QByteArray& bytes)
{
    QSaveFile file(path);
    return fill(file, bytes) && file.commit();
}

bool TestFiles::link(const QString& target, const QString& path)
{
    const QByteArray temporary = QFile::encodeName(path + ".new");
    return ::symlink(QFile::encodeName(target), temporary) == 0 &&
           std::rename(temporary, QFile::encodeName(path)) == 0;
}

bool TestFiles::setMode(const QString& path, unsigned int mode)
{
    return ::chmod(QFile::encodeName(path), mode) == 0;
}

QByteArray TestFiles::units(const QString& label)
{
    return QStringLiteral(
               R"({"Pressure": {"Bar": {"@displayPosition": 0, "DecimalPlaces": 3, "Polynomial": [[0], [1]],
  "InversePolynomial": [[0], [1]], "UnitLabel": {"@value": {"en": "%1"}}}}})")
        .arg(label)
        .toUtf8();
}

QByteArray TestFiles::defaultUnits(const QString& unit)
{
    return QStringLiteral(R"({"Pressure": {"@type": "Selection", "@value": "%1"}})").arg(unit).toUtf8();
}

QByteArray TestFiles::dependencies(const QString& dependent)
{
    return QStringLiteral(R"({"PressureUnit": ["%1"]})").arg(dependent).toUtf8();
}
