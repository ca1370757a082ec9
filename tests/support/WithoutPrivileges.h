#pragma once

#include <cstdlib>
#include <unistd.h>

/// During its lifetime, this process has the permissions of an ordinary user, even if root runs it.
class WithoutPrivileges
{
public:
    WithoutPrivileges()
        : m_user(::getuid()), m_isEffective(m_user != 0 || ::setresuid(nobody, nobody, m_user) == 0)
    {}

    ~WithoutPrivileges()
    {
        if (::setresuid(m_user, m_user, m_user) != 0)
            std::abort();
    }

    WithoutPrivileges(const WithoutPrivileges&) = delete;
    WithoutPrivileges& operator=(const WithoutPrivileges&) = delete;

    /// Whether the privileges were dropped.
    bool isEffective() const
    {
        return m_isEffective;
    }

private:
    static const uid_t nobody = 65534;

    const uid_t m_user;
    const bool m_isEffective;
};
