#pragma once

#include <QtCore/QSharedPointer>

#include "ConfigurationAndProcessDataBase.h"
#include "UnitConversion/Factory.h"
#include "UnitConversion/ValueConverterBase.h"
#include "UnitManagerExport.h"

/// Registry of the value converters. The keys are those of the unit document: "Polynomial",
/// "EquidistantTable", "ArbitraryTable".
using ValueConverterFactory =
    VESKFactories::Factory<ValueConverterBase, const QSharedPointer<ConfigurationAndProcessDataBase>&>;

// QSharedPointer has no visibility attribute, so an implicit instantiation would be hidden and every library
// would have its own registry. This explicit, exported instantiation is shared by all libraries.
extern template class UNITMANAGER_EXPORT
    VESKFactories::Factory<ValueConverterBase, const QSharedPointer<ConfigurationAndProcessDataBase>&>;
