/// What nearly always has its default value.
#pragma once

#include <memory>
#include <utility>

/// A value that takes memory of its own only once it is changed; until then all share the default
/// one. A copy has a value of its own.
template <class T>
class KdRare
{
  public:
    KdRare() = default;
    KdRare(const KdRare& other) : m_own(other.m_own ? std::make_unique<T>(*other.m_own) : nullptr)
    {
    }
    KdRare(KdRare&& other) noexcept = default;
    KdRare& operator=(KdRare other) noexcept
    {
        m_own = std::move(other.m_own);
        return *this;
    }
    ~KdRare() = default;

    const T& operator*() const { return m_own ? *m_own : defaultValue(); }
    const T* operator->() const { return &**this; }
    /// The value for change.
    T& edit()
    {
        if (!m_own)
            m_own = std::make_unique<T>();
        return *m_own;
    }
    /// Gives one part of the value, which stays shared where that changes nothing.
    template <class Part, class Value>
    void set(Part T::*part, Value&& value)
    {
        if (!(**this.*part == value))
            edit().*part = std::forward<Value>(value);
    }

  private:
    static const T& defaultValue()
    {
        static const T value;
        return value;
    }

    std::unique_ptr<T> m_own;
};
