#pragma once

#include "CatalogueVerb.h"

struct UnitType;

/// Lists the units of a type.
class UnitsVerb : public CatalogueVerb
{
public:
    UnitsVerb();

protected:
    void addOptions(QCommandLineParser& parser) const override;
    Result<ExitCode> answer(const UnitCatalogue& catalogue, const QCommandLineParser& options,
                            const QStringList& arguments) override;

private:
    void printJson(const UnitCatalogue& catalogue, const UnitType& type, const QString& language) const;
    void printTable(const UnitCatalogue& catalogue, const UnitType& type, const QString& language) const;
};
