#pragma once

#include <QtCore/QHash>
#include <QtCore/QString>

#include <memory>
#include <typeinfo>
#include <unordered_map>
#include <utility>

namespace VESKFactories {

/// Hash of a registry key: qHash() without the per-process seed.
struct KeyHasher
{
    std::size_t operator()(const QString& key) const
    {
        return qHash(key, 0);
    }
};

/// Registry key of a class: the decimal text of its type's hash code.
///
/// @return the same text on every call within one process; it means nothing outside of it.
template <typename T>
QString createFactoryKey()
{
    return QString::number(typeid(T).hash_code(), 10);
}

/// Process-wide registry of creators for classes derived from @p Base, keyed by text.
///
/// There is one registry per instantiation and process, shared by all shared libraries, when one library
/// exports an explicit instantiation (`extern template class EXPORT Factory<...>;` in a header, the
/// definition in one source): an implicit one is exported only when `Base` and every class among `Args` are,
/// template arguments included. The registry is filled by static initialisers when a library is loaded and
/// only read afterwards; it takes no locks.
template <typename Base, typename... Args>
class Q_DECL_EXPORT Factory
{
public:
    /// Makes one class of objects.
    class Q_DECL_EXPORT AbstractCreator
    {
    public:
        /// @return a new object, owned by the caller.
        virtual Base* create(Args... args) = 0;
        virtual ~AbstractCreator() = default;
    };

    /// Makes objects of class @p T.
    template <typename T>
    class Q_DECL_EXPORT Creator : public AbstractCreator
    {
    public:
        Base* create(Args... args) override
        {
            return new T(args...);
        }
    };

    /// The one registry of this instantiation, built on first use and destroyed at process exit.
    static Factory& instance();

    /// Registers class @p T under @p key; a creator already there is destroyed and replaced, silently.
    template <typename T>
    void registerClass(const QString& key)
    {
        creators[key] = std::make_unique<Creator<T>>();
    }

    /// Makes an object of the class registered under @p key from @p args.
    ///
    /// @return the new object, owned by the caller; a null pointer when the key is not registered (nothing is
    /// logged).
    Base* create(const QString& key, Args... args) const
    {
        const auto creator = creators.find(key);
        return creator == creators.end() ? nullptr : creator->second->create(args...);
    }

    /// The creators by key.
    std::unordered_map<QString, std::unique_ptr<AbstractCreator>, KeyHasher> creators;
};

// Not inline: where an explicit instantiation is declared, Clang would otherwise give each library a copy of
// the static object, and the copies of libraries in scopes of their own stay apart.
template <typename Base, typename... Args>
Factory<Base, Args...>& Factory<Base, Args...>::instance()
{
    static Factory factory;
    return factory;
}

} // namespace VESKFactories
