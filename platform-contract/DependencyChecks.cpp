#include "Checks.h"
#include "ConfigurationAndProcessDataParser.h"
#include "DependencyWalker.h"
#include "PropertyManagerConst.h"
#include "UnitManipulatorBase.h"

namespace {

const QString document = R"({ "A": ["B", "C"], "B": ["D", "A"] })";

/// Counts the nodes that it edits.
class CountingManipulator : public UnitManipulatorBase
{
public:
    explicit CountingManipulator(QStringList& unitTypes) : m_unitTypes(unitTypes) {}

    void manipulate(const QSharedPointer<ConfigurationAndProcessDataBase>& /*node*/, const QString& unitType,
                    bool& handled, bool& /*changed*/) override
    {
        m_unitTypes.append(unitType);
        handled = true;
    }

private:
    QStringList& m_unitTypes;
};

void documentsAreLoaded(Faults& faults)
{
    DependencyWalker walker;
    faults.expect(walker.initDependencyGraphByJsonString(document), "a document is loaded");
    faults.expect(!walker.initDependencyGraphByJsonString("{"), "a text that is not JSON is refused");
}

void dependentsAreVisitedOnce(Faults& faults)
{
    DependencyWalker walker;
    walker.initDependencyGraphByJsonString(document);
    QList<QVariant> visited;
    walker.traverseDependencyGraph("A", {}, {}, visited, {}, {});
    QStringList keys;
    for (const QVariant& key : qAsConst(visited))
        keys.append(key.toString());
    keys.sort();
    faults.expect(keys == QStringList({"B", "C", "D"}),
                  "direct and indirect dependents are visited once, despite a cycle");
}

void manipulatorIsApplied(Faults& faults)
{
    DependencyWalker walker;
    walker.initDependencyGraphByJsonString(document);
    const auto tree = ConfigurationAndProcessDataParser().parseFromJson(
        R"({ "B": { "@value": 1, "@unitType": "Any/Type" } })",
        PropertyManagerConst::getConfigFileExtension());
    QStringList unitTypes;
    auto manipulator = QSharedPointer<CountingManipulator>::create(unitTypes);
    const QWeakPointer<CountingManipulator> observer = manipulator;
    QList<QVariant> visited;
    walker.traverseDependencyGraph("A", tree, tree, visited, {}, manipulator);
    faults.expect(unitTypes == QStringList{"Any/Type"}, "each node is edited once, with its unit type");
    manipulator.reset();
    faults.expect(!observer, "the walker does not keep the manipulator");
}

} // namespace

QList<Check> dependencyChecks()
{
    const QString traverse =
        "DependencyWalker::traverseDependencyGraph(QString const&, "
        "QSharedPointer<ConfigurationAndProcessDataBase> const&, "
        "QSharedPointer<ConfigurationAndProcessDataBase> const&, QList<QVariant>&, QList<QVariant>, "
        "QSharedPointer<UnitManipulatorBase>) const";
    return {
        {"dependencies: documents are loaded",
         {"DependencyWalker::DependencyWalker()",
          "DependencyWalker::initDependencyGraphByJsonString(QString const&)"},
         documentsAreLoaded},
        {"dependencies: dependents are visited once", {traverse}, dependentsAreVisitedOnce},
        {"dependencies: the manipulator is applied",
         {traverse, "UnitManipulatorBase::UnitManipulatorBase()",
          "UnitManipulatorBase::~UnitManipulatorBase()"},
         manipulatorIsApplied},
    };
}
