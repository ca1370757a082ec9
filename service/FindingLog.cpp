#include "FindingLog.h"

#include <QtCore/QDebug>

void FindingLog::writeWarning(const QString& name, const QString& path, const Finding& finding)
{
    const RuleDescription& rule = Rules::describe(finding.rule);
    if (rule.severity != Severity::Warning)
        return;
    const DocumentProblem problem{finding.text() + " [" + rule.name + ']', finding.place};
    qWarning().noquote() << name + ": " + problem.inFile(path);
}
