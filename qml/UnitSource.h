#pragma once

#include <QtCore/QTimer>
#include <QtCore/QVariant>

#include "UnitManagerDevice/UnitManagerDevice.h"
#include "UnitManagerDevice/UnitManagerWrapper.h"

/// The C++ part of Units.qml, which describes the operations. Polls the unit manager of the configuration
/// service, and writes and reads numbers in the default locale.
class UnitSource : public QObject
{
    Q_OBJECT
    /// "waiting" without units, "reading" while they may be replaced, "ready".
    Q_PROPERTY(QString state READ state NOTIFY stateChanged)
    /// Language of the labels; initially that of the default locale, which must be changed first.
    Q_PROPERTY(QString language MEMBER m_language NOTIFY revisionChanged)
    /// Whether numbers are written with group separators; initially false.
    Q_PROPERTY(bool groupSeparators MEMBER m_hasGroupSeparators NOTIFY revisionChanged)
    /// Grows when the results of operations may have changed.
    Q_PROPERTY(int revision READ revision NOTIFY revisionChanged)
    /// This object. A binding that reads it is evaluated again with every revision.
    Q_PROPERTY(UnitSource* current READ current NOTIFY revisionChanged)

public:
    explicit UnitSource(QObject* parent = nullptr);

    QString state() const;
    int revision() const;
    UnitSource* current();

    Q_INVOKABLE QString numberOf(const QVariant& value, const QString& unitType, const QString& unit) const;
    Q_INVOKABLE QString labelOf(const QString& unitType, const QString& unit);
    Q_INVOKABLE QVariantList unitsOf(const QString& unitType);
    Q_INVOKABLE QString defaultUnitOf(const QString& unitType) const;
    Q_INVOKABLE double convertTo(double value, const QString& unitType, const QString& unit) const;
    Q_INVOKABLE double convertFrom(double value, const QString& unitType, const QString& unit) const;
    Q_INVOKABLE QVariantMap parse(const QString& text, const QString& unitType, const QString& unit) const;

Q_SIGNALS:
    void stateChanged();
    void revisionChanged();
    /// Emitted after a configuration was loaded, including the first one.
    void configurationAdopted();

private:
    void poll();

    UnitManagerWrapper m_units;
    QTimer m_timer;
    QString m_state = QStringLiteral("waiting");
    QString m_language;
    bool m_hasGroupSeparators = false;
    int m_revision = 0;
};
