#include <cmath>
#include <limits>

#include "Checks.h"
#include "DeviceManagerDefinitions.h"
#include "FloatRound.h"
#include "PropertyManagerConst.h"
#include "TranslateableTextHelper.h"
#include "hashFromString.h"

namespace {

void namesAreConstant(Faults& faults)
{
    const auto isConstant = [](const QString& (*getter)()) {
        const QString& first = getter();
        return !first.isEmpty() && &first == &getter();
    };
    faults.expect(isConstant(DeviceManagerDefinitions::getModuleName), "the module has a constant name");
    faults.expect(isConstant(DeviceManagerDefinitions::getObjectNameUnitManagerConfiguration),
                  "the object of the units has a constant name");
    faults.expect(isConstant(PropertyManagerConst::getDBusPrefix), "the bus prefix is constant");
    faults.expect(!PropertyManagerConst::getDBusPrefix().endsWith('.'), "the bus prefix has no final dot");
    faults.expect(isConstant(PropertyManagerConst::getUnitTypeNamePrefix),
                  "the unit-type prefix is constant");
    faults.expect(PropertyManagerConst::getUnitTypeNamePrefix().endsWith('/'),
                  "the unit-type prefix ends with a slash");
}

void valuesAreRounded(Faults& faults)
{
    faults.expect(FloatRound::roundValue(1.26, 1) == 1.3, "1.26 is 1.3 with one place");
    faults.expect(FloatRound::roundValue(1.24, 1) == 1.2, "1.24 is 1.2 with one place");
    faults.expect(FloatRound::roundValue(2.5, 0) == 3.0 && FloatRound::roundValue(-2.5, 0) == -3.0,
                  "halves are rounded away from zero");
    faults.expect(FloatRound::roundValue(30000000.567, 2) == 30000000.57, "large numbers keep their places");
    faults.expect(std::isnan(FloatRound::roundValue(std::numeric_limits<double>::quiet_NaN(), 2)),
                  "a NaN stays a NaN");
    faults.expect(FloatRound::roundValue(1e300, 2) == 1e300, "a number without places stays unchanged");
}

void textsFallBack(Faults& faults)
{
    TranslateableTextHelper helper("de", nullptr);
    const QVariantMap texts = {{TranslateableTextHelper::getLastFallbackLanguage(), "fallback"},
                               {"de", "deutsch"}};
    helper.setTranslateableTextObject(texts);
    faults.expect(helper.getText("de") == "deutsch", "a text is found by its language");
    faults.expect(helper.getText("fr") == "fallback",
                  "a missing language has the text of the fallback language");
    faults.expect(helper.getTranslateableTextObject() == QVariant(texts), "the texts are returned as a map");
    helper.setTranslateableTextObject("bar");
    faults.expect(helper.getText("de") == "bar", "a plain text is the text of every language");
}

void textsAreSet(Faults& faults)
{
    TranslateableTextHelper helper(QString(), nullptr);
    helper.setText(QString(""), TranslateableTextHelper::getLastFallbackLanguage());
    faults.expect(helper.getTranslateableTextObject() ==
                      QVariant(QVariantMap{{TranslateableTextHelper::getLastFallbackLanguage(), ""}}),
                  "a text of one language is a map with that language");
}

void hashesAreStable(Faults& faults)
{
    const unsigned int hash = hashFromString(QString("Pressure"));
    faults.expect(hashFromString(QString("Pressure")) == hash, "a text has the same hash each time");
    faults.expect(hashFromString(QString("Ratio")) != hash, "the hash depends on the text");
}

} // namespace

QList<Check> supportChecks()
{
    return {
        {"names: they are constant",
         {"DeviceManagerDefinitions::getModuleName()",
          "DeviceManagerDefinitions::getObjectNameUnitManagerConfiguration()",
          "PropertyManagerConst::getDBusPrefix()", "PropertyManagerConst::getUnitTypeNamePrefix()"},
         namesAreConstant},
        {"rounding: values are rounded", {"FloatRound::roundValue(double, unsigned int)"}, valuesAreRounded},
        {"texts: missing languages fall back",
         {"TranslateableTextHelper::TranslateableTextHelper(QString const&, QObject*)",
          "TranslateableTextHelper::getLastFallbackLanguage()",
          "TranslateableTextHelper::getText(QString const&) const",
          "TranslateableTextHelper::getTranslateableTextObject() const",
          "TranslateableTextHelper::setTranslateableTextObject(QVariant const&)",
          "TranslateableTextHelper::~TranslateableTextHelper()"},
         textsFallBack},
        {"texts: texts are set",
         {"TranslateableTextHelper::setText(QString const&, QString const&)"},
         textsAreSet},
        {"hash: it is stable", {"hashFromString(QVariant const&)"}, hashesAreStable},
    };
}
