#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVector>

/// A value converted by the library, and the names of its units in a program.
struct Conversion
{
    QString from;
    QString to;
    double value = 0.0;
    double result = 0.0;
};

/// A unit conversion program that checks the library's results. All conversions are checked in one run of it.
class ConversionProgram
{
public:
    ConversionProgram(const ConversionProgram&) = delete;
    ConversionProgram& operator=(const ConversionProgram&) = delete;
    virtual ~ConversionProgram();

    /// Whether the program can determine the deviation of this conversion.
    virtual bool isAnswerable(const Conversion& conversion) const;

    /// The deviation of each result from the program's own, in the unit converted to.
    ///
    /// @param error set if the program is missing, fails or does not answer every query
    /// @return one number per conversion; empty on error
    QVector<double> deviations(const QVector<Conversion>& conversions, QString* error) const;

protected:
    ConversionProgram(QString command, QStringList arguments);

    /// The shortest text that reads back as the same number, with an exponent: the program would read an
    /// integer after a unit of time as a date.
    static QString numberText(double number);

private:
    /// The input lines that request one conversion.
    virtual QString query(const Conversion& conversion) const = 0;
    /// The answers in the program's output, one text per query.
    virtual QStringList answers(const QString& output) const = 0;
    /// Parses one answer; @p ok is false if it is invalid.
    virtual double deviation(const QString& answer, const Conversion& conversion, bool* ok) const = 0;

    QString run(const QString& input, QString* error) const;

    QString m_command;
    QStringList m_arguments;
};
