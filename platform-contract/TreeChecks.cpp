#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryFile>

#include "Checks.h"
#include "ConfigurationAndProcessDataDefinitions.h"
#include "ConfigurationAndProcessDataParser.h"
#include "ConfigurationAndProcessDataTools.h"
#include "ConfigurationDataAndProcessDescriptionAccess.h"
#include "PropertyManagerConst.h"

namespace {

using Definitions = ConfigurationAndProcessDataDefinitions;
using Tools = ConfigurationAndProcessDataTools;

BaseClassSharedPointer parsed(const char* json)
{
    return ConfigurationAndProcessDataParser().parseFromJson(QString::fromUtf8(json),
                                                             PropertyManagerConst::getConfigFileExtension());
}

const char* const document = R"({
    "Pressure": {
        "Bar": { "@displayPosition": 0, "DecimalPlaces": 3, "Polynomial": [[0], [1]], "UnitLabel": "bar" },
        "Empty": null
    },
    "Default": { "@type": "Selection", "@value": "Bar" },
    "Value": { "@value": 1.5, "@unitType": "Any/Type", "@measurementRangeAttributes": [ { "max": 16 } ] }
})";

BaseClassSharedPointer childOf(const char* key)
{
    const BaseClassSharedPointer root = parsed(document);
    return root ? root->getChild(QString::fromLatin1(key)) : BaseClassSharedPointer();
}

void documentsAreParsed(Faults& faults)
{
    const BaseClassSharedPointer root = parsed(document);
    faults.expect(root, "a document has a root node");
    if (!root)
        return;
    const BaseClassSharedPointer pressure = root->getChild("Pressure");
    faults.expect(pressure, "a child is found by its key");
    faults.expect(!root->getChild("Nope"), "an unknown key has a null child");
    faults.expect(root->getChildMap().size() == 3, "the child map has an entry for each child");
    faults.expect(pressure && pressure->getChildMap().contains("Empty") &&
                      !pressure->getChildMap().value("Empty"),
                  "a child that is null in the document has an entry without a node");
    faults.expect(!parsed("") && !parsed("{") && !parsed("[]") && !parsed("{} {}"),
                  "a text that is not one JSON object has no root node");
}

void propertiesHaveTheirKeys(Faults& faults)
{
    const BaseClassSharedPointer value = childOf("Value");
    const BaseClassSharedPointer selection = childOf("Default");
    const BaseClassSharedPointer pressure = childOf("Pressure");
    const BaseClassSharedPointer bar = pressure ? pressure->getChild("Bar") : BaseClassSharedPointer();
    if (!value || !selection || !bar) {
        faults.expect(false, "the children of the document are found");
        return;
    }
    faults.expect(value->getProperty(Definitions::getKeyDataPropertyValue()) == QVariant(1.5),
                  "the value property is the number of the document");
    faults.expect(value->getProperty(Definitions::getKeyDataPropertyUnitType()) == QVariant("Any/Type"),
                  "the unit-type property is the text of the document");
    faults.expect(value->hasProperty(Definitions::getKeyDataPropertyMeasurementRangeAttributes()),
                  "the node has the measurement-range attributes of the document");
    faults.expect(!bar->hasProperty(Definitions::getKeyDataPropertyUnitType()) &&
                      !bar->getProperty(Definitions::getKeyDataPropertyUnitType()).isValid(),
                  "a property that a node does not have is invalid");
    faults.expect(bar->getProperty(Definitions::getKeyDataPropertyDisplayPosition()).toInt() == 0 &&
                      bar->hasProperty(Definitions::getKeyDataPropertyDisplayPosition()),
                  "the display position is the number of the document");
    faults.expect(bar->getProperty(Definitions::getKeyDataPropertyType()) ==
                      QVariant(Definitions::getKeyDataTypeTreeNode()),
                  "a node without a value is a tree node");
    faults.expect(selection->getProperty(Definitions::getKeyDataPropertyType()) ==
                      QVariant(Definitions::getKeyDataTypeSelection()),
                  "the type is the one that the document names");
    faults.expect(value->isNumberType() && !selection->isNumberType() && !bar->isNumberType(),
                  "only a node with a number is a number");
}

void writesReportTheirStatus(Faults& faults)
{
    const BaseClassSharedPointer root = parsed(document);
    if (!root) {
        faults.expect(false, "a document has a root node");
        return;
    }
    faults.expect(Tools::setConfigValueWithStatus("Value", root, 2.5) == 0, "a changed value has status 0");
    faults.expect(Tools::extractConfigValue("Value", root) == QVariant(2.5), "a written value is read");
    faults.expect(Tools::setConfigValueWithStatus("Value", root, 2.5) == 1, "an equal value has status 1");
    const BaseClassSharedPointer value = root->getChild("Value");
    const QString key = Definitions::getKeyDataPropertyMeasurementRangeAttributes();
    const QVariantList ranges = {QVariantMap{{"max", 99}}};
    faults.expect(value && value->changeProperty(key, ranges) == 0, "a changed property has status 0");
    faults.expect(value && value->changeProperty(key, ranges) == 1, "an equal property has status 1");
}

void writesWithoutANodeFail(Faults& faults)
{
    const BaseClassSharedPointer root = parsed(document);
    faults.expect(Tools::setConfigValueWithStatus("Nope", root, 2.5) == 2,
                  "a value of a missing child has status 2");
    faults.expect(Tools::setConfigValueWithStatus("Value", {}, 2.5) == 2,
                  "a value without a node has status 2");
    faults.expect(!Tools::extractConfigValue("Nope", root).isValid() &&
                      !Tools::extractConfigValue("Value", {}).isValid(),
                  "the value of a missing node is invalid");
}

void childKeepsItsTree(Faults& faults)
{
    const BaseClassSharedPointer child = childOf("Value");
    faults.expect(child && child->getProperty(Definitions::getKeyDataPropertyValue()) == QVariant(1.5),
                  "a child is usable after the handle to its root was released");
}

void lastHandleReleasesTheTree(Faults& faults)
{
    BaseClassSharedPointer root = parsed(document);
    const BaseClassSharedPointer other = parsed(document);
    const QWeakPointer<ConfigurationAndProcessDataBase> observer = root;
    root.reset();
    faults.expect(!observer, "a root node is destroyed with its last handle");
    const BaseClassSharedPointer again = parsed(document);
    Tools::setConfigValueWithStatus("Value", again, 2.5);
    faults.expect(Tools::extractConfigValue("Value", other) == QVariant(1.5),
                  "two trees of the same text share no values");
}

void filesAreRead(Faults& faults)
{
    QTemporaryFile file;
    const QByteArray text("{ \"a\": \"\xC2\xB0\" }");
    faults.expect(file.open() && file.write(text) == text.size() && file.flush(), "a file can be written");
    const ConfigurationDataAndProcessDescriptionAccess access;
    faults.expect(access.getConfiguration(QFileInfo(file.fileName())) == QString::fromUtf8(text),
                  "a file is read as UTF-8");
    faults.expect(access.getConfiguration(QFileInfo(file.fileName() + ".missing")).isEmpty(),
                  "a file that does not exist has an empty text");
}

} // namespace

QList<Check> treeChecks()
{
    const QString parse =
        "ConfigurationAndProcessDataParser::parseFromJson(QString const&, QString const&) const";
    const QString extension = "PropertyManagerConst::getConfigFileExtension()";
    const QString read = "ConfigurationAndProcessDataTools::extractConfigValue(QString const&, "
                         "QSharedPointer<ConfigurationAndProcessDataBase> const&)";
    const QString write = "ConfigurationAndProcessDataTools::setConfigValueWithStatus(QString const&, "
                          "QSharedPointer<ConfigurationAndProcessDataBase> const&, QVariant const&)";
    return {
        {"tree: documents are parsed",
         {parse, extension, "ConfigurationAndProcessDataBase::getChildMap() const"},
         documentsAreParsed},
        {"tree: properties have their keys",
         {"ConfigurationAndProcessDataDefinitions::getKeyDataPropertyDisplayPosition()",
          "ConfigurationAndProcessDataDefinitions::getKeyDataPropertyMeasurementRangeAttributes()",
          "ConfigurationAndProcessDataDefinitions::getKeyDataPropertyType()",
          "ConfigurationAndProcessDataDefinitions::getKeyDataPropertyUnitType()",
          "ConfigurationAndProcessDataDefinitions::getKeyDataPropertyValue()",
          "ConfigurationAndProcessDataDefinitions::getKeyDataTypeSelection()",
          "ConfigurationAndProcessDataDefinitions::getKeyDataTypeTreeNode()"},
         propertiesHaveTheirKeys},
        {"tree: writes report their status", {read, write}, writesReportTheirStatus},
        {"tree: writes without a node fail", {read, write}, writesWithoutANodeFail},
        {"tree: a child keeps its tree", {parse}, childKeepsItsTree},
        {"tree: the last handle releases the tree", {parse}, lastHandleReleasesTheTree},
        {"tree: files are read",
         {"ConfigurationDataAndProcessDescriptionAccess::getConfiguration(QFileInfo const&) const"},
         filesAreRead},
    };
}
