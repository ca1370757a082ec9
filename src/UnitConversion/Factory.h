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
    /// The hash, the same in every process.
    std::size_t operator()(const QString& key) const
    {
        return qHash(key, 0);
    }
};

/// Registry key of a class: the hash code of its type as decimal text.
///
/// @return the same text on every call within one process; it has no meaning outside the process.
template <typename T>
QString createFactoryKey()
{
    return QString::number(typeid(T).hash_code(), 10);
}

/// Process-wide registry of creators for classes derived from @p Base, keyed by text.
///
/// There is one registry per instantiation and process, shared by all shared libraries, if one library
/// exports an explicit instantiation (`extern template class EXPORT Factory<...>;` in a header, the
/// definition in one source file). An implicit instantiation is exported only if `Base` and every class among
/// `Args`, template arguments included, are exported. Static initialisers fill the registry when a library is
/// loaded; afterwards it is only read. It takes no locks.
template <typename Base, typename... Args>
class Q_DECL_EXPORT Factory
{
public:
    /// Creates objects of one class.
    class Q_DECL_EXPORT AbstractCreator
    {
    public:
        /// @return a new object, owned by the caller.
        virtual Base* create(Args... args) = 0;
        virtual ~AbstractCreator() = default;
    };

    /// Creates objects of class @p T.
    template <typename T>
    class Q_DECL_EXPORT Creator : public AbstractCreator
    {
    public:
        Base* create(Args... args) override
        {
            return new T(args...);
        }
    };

    /// The only registry of this instantiation, built on first use and destroyed at process exit.
    static Factory& instance();

    /// Registers class @p T under @p key. An existing creator is destroyed and replaced; nothing is logged.
    template <typename T>
    void registerClass(const QString& key)
    {
        creators[key] = std::make_unique<Creator<T>>();
    }

    /// Creates an object of the class registered under @p key from @p args.
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

// Not inline: with an explicit instantiation declared, Clang would otherwise emit a copy of the static object
// into each library, and libraries loaded into separate scopes would not share it.
template <typename Base, typename... Args>
Factory<Base, Args...>& Factory<Base, Args...>::instance()
{
    static Factory factory;
    return factory;
}

} // namespace VESKFactories
