#include "MemberNames.h"

#include "SimilarName.h"

QString MemberNames::suggestion(const QString& name, const QStringList& known)
{
    const QString similar = SimilarName::of(name, known);
    return similar.isEmpty() ? QString() : "did you mean " + DocumentProblem::quoted(similar) + '?';
}

QString MemberNames::misspelling(const JsonValue& object, const QString& missing)
{
    QStringList names;
    for (const JsonValue& member : object.children())
        names.append(member.name());
    return names.contains(missing) ? QString() : SimilarName::of(missing, names);
}

QString MemberNames::adviceForMissing(const JsonValue& object, const QString& missing,
                                      const QString& otherwise)
{
    const QString misspelt = misspelling(object, missing);
    return misspelt.isEmpty() ? otherwise
                              : DocumentProblem::quoted(misspelt) + ": " + suggestion(misspelt, {missing});
}
