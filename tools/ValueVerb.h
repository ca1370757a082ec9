#pragma once

#include "CatalogueVerb.h"
#include "UnitCatalogue.h"

/// A verb whose first arguments are VALUE TYPE FROM.
class ValueVerb : public CatalogueVerb
{
protected:
    using CatalogueVerb::CatalogueVerb;

    /// The unit of the given value.
    struct Source
    {
        UnitType type;
        QString unit;
    };

    /// Executes the verb. @return an ExitCode
    virtual int convert(const UnitCatalogue& catalogue, const Source& source,
                        const QCommandLineParser& options, const QStringList& arguments) = 0;

    /// Prints that @p text is not a value. @return WrongUsage
    int valueError(const QString& text) const;
    /// The help text about values and fixed units, common to all these verbs.
    static QString valueRules();

    void addOptions(QCommandLineParser& parser) const override;

private:
    int answer(const UnitCatalogue& catalogue, const QCommandLineParser& options,
               const QStringList& arguments) final;
};
