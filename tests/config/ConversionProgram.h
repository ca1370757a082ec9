#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVector>

/// One value converted by the library, and the units it was converted between in the words of a program.
struct Conversion
{
    QString from;
    QString to;
    double value = 0.0;
    double result = 0.0;
};

/// A unit conversion program that checks conversions made elsewhere. All of them go through one run of it.
class ConversionProgram
{
public:
    ConversionProgram(const ConversionProgram&) = delete;
    ConversionProgram& operator=(const ConversionProgram&) = delete;
    virtual ~ConversionProgram();

    /// Whether the program can tell for this conversion how far the result is off.
    virtual bool isAnswerable(const Conversion& conversion) const;

    /// How far each result lies from the program's own, in the unit converted to.
    ///
    /// @param error says what went wrong when the program is missing, fails or does not answer every question
    /// @return one number per conversion; none when there is an error
    QVector<double> deviations(const QVector<Conversion>& conversions, QString* error) const;

protected:
    ConversionProgram(QString command, QStringList arguments);

    /// The shortest text that reads back as the same number, with an exponent: a whole number behind a unit
    /// of time would be a date.
    static QString numberText(double number);

private:
    /// The lines that ask for one conversion.
    virtual QString question(const Conversion& conversion) const = 0;
    /// The answers in the program's output, one text per question.
    virtual QStringList answers(const QString& output) const = 0;
    /// Reads one answer; @p ok tells whether it is one.
    virtual double deviation(const QString& answer, const Conversion& conversion, bool* ok) const = 0;

    QString run(const QString& input, QString* error) const;

    QString m_command;
    QStringList m_arguments;
};
