#pragma once

#include "CatalogueVerb.h"
#include "UnitCatalogue.h"

/// A verb that takes VALUE TYPE FROM as its first arguments.
class ValueVerb : public CatalogueVerb
{
protected:
    using CatalogueVerb::CatalogueVerb;

    /// The unit that the value is given in.
    struct Source
    {
        UnitType type;
        QString unit;
    };

    /// Does the work. @return an ExitCode
    virtual int convert(const UnitCatalogue& catalogue, const Source& source,
                        const QCommandLineParser& options, const QStringList& arguments) = 0;

    /// Says that @p text is no value. @return WrongUsage
    int valueError(const QString& text) const;
    /// What the help of every such verb says of values and fixed units.
    static QString valueRules();

    void addOptions(QCommandLineParser& parser) const override;

private:
    int answer(const UnitCatalogue& catalogue, const QCommandLineParser& options,
               const QStringList& arguments) final;
};
