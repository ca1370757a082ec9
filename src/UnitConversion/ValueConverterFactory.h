#pragma once

#include <QtCore/QSharedPointer>

#include "ConfigurationAndProcessDataBase.h"
#include "UnitConversion/Factory.h"
#include "UnitConversion/ValueConverterBase.h"
#include "UnitManagerExport.h"

/// Registry of the value converters, keyed by the words of the unit document: "Polynomial",
/// "EquidistantTable", "ArbitraryTable".
using ValueConverterFactory =
    VESKFactories::Factory<ValueConverterBase, const QSharedPointer<ConfigurationAndProcessDataBase>&>;

// QSharedPointer carries no visibility of its own, so that this instantiation would be hidden and every
// library would have a registry. The library's explicit one, exported, serves them all.
extern template class UNITMANAGER_EXPORT
    VESKFactories::Factory<ValueConverterBase, const QSharedPointer<ConfigurationAndProcessDataBase>&>;
