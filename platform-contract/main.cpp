#include <QtCore/QCoreApplication>
#include <QtCore/QTextStream>

#include <algorithm>

#include "Checks.h"

namespace {

QList<Check> allChecks()
{
    return treeChecks() + valueChecks() + tableChecks() + supportChecks() + stateMachineChecks() +
           sourceChecks() + processDataChecks() + dependencyChecks();
}

/// Prints the operations that the checks use, one per line.
void printOperations(QTextStream& out)
{
    QStringList operations;
    const QList<Check> checks = allChecks();
    for (const Check& check : checks)
        operations += check.operations;
    operations.removeDuplicates();
    std::sort(operations.begin(), operations.end());
    for (const QString& operation : qAsConst(operations))
        out << operation << '\n';
}

/// Prints the table. @return the number of checks that have found a fault.
int runChecks(QTextStream& out)
{
    const QList<Check> checks = allChecks();
    int failed = 0;
    for (const Check& check : checks) {
        Faults faults;
        check.run(faults);
        out << (faults.list().isEmpty() ? "ok     " : "FAULT  ") << check.name << '\n';
        for (const QString& fault : faults.list())
            out << "         expected: " << fault << '\n';
        failed += faults.list().isEmpty() ? 0 : 1;
        out.flush();
    }
    out << checks.size() << " checks, " << failed << " with faults\n";
    return failed;
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    QTextStream out(stdout);
    const QStringList arguments = application.arguments().mid(1);
    if (arguments == QStringList{QStringLiteral("--operations")}) {
        printOperations(out);
        return 0;
    }
    if (!arguments.isEmpty()) {
        QTextStream(stderr) << "usage: platform-contract [--operations]\n"
                               "Checks the platform that it is linked to. Exit code 1: it has faults.\n"
                               "--operations  list the operations that are checked\n";
        return 2;
    }
    return runChecks(out) == 0 ? 0 : 1;
}
