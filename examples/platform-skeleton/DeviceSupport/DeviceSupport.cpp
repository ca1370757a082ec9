#include "DeviceManagerDefinitions.h"
#include "FloatRound.h"
#include "PropertyManagerConst.h"
#include "TranslateableTextHelper.h"
#include "hashFromString.h"

const QString& DeviceManagerDefinitions::getModuleName()
{
    static const QString name("DeviceManager");
    return name;
}

const QString& DeviceManagerDefinitions::getObjectNameUnitManagerConfiguration()
{
    static const QString name("UnitManagerConfiguration");
    return name;
}

const QString& PropertyManagerConst::getUnitTypeNamePrefix()
{
    static const QString prefix("UnitManager/UnitType/");
    return prefix;
}

const QString& PropertyManagerConst::getConfigFileExtension()
{
    static const QString extension("json");
    return extension;
}

const QString& PropertyManagerConst::getDBusPrefix()
{
    static const QString prefix("org.measuringdevice");
    return prefix;
}

double FloatRound::roundValue(double value, unsigned int /*decimalPlaces*/)
{
    return value;
}

TranslateableTextHelper::TranslateableTextHelper(const QString& /*language*/, QObject* /*parent*/) {}

TranslateableTextHelper::~TranslateableTextHelper() = default;

void TranslateableTextHelper::setTranslateableTextObject(const QVariant& /*object*/) {}

QVariant TranslateableTextHelper::getTranslateableTextObject() const
{
    return {};
}

void TranslateableTextHelper::setText(const QString& /*text*/, const QString& /*language*/) {}

QString TranslateableTextHelper::getText(const QString& /*language*/) const
{
    return {};
}

const QString& TranslateableTextHelper::getLastFallbackLanguage()
{
    static const QString language("en");
    return language;
}

unsigned int hashFromString(const QVariant& /*text*/)
{
    return 0;
}
