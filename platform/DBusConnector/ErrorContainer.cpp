#include "ErrorContainer.h"

ErrorContainer::ErrorContainer() = default;

ErrorContainer::ErrorContainer(const QString& name, const QString& message) : m_name(name), m_message(message)
{}

bool ErrorContainer::isError() const
{
    return !m_name.isEmpty();
}

QString ErrorContainer::getName() const
{
    return m_name;
}

QString ErrorContainer::getMessage() const
{
    return m_message;
}
