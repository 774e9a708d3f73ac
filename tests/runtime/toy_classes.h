/// Runtime classes to try the mechanism on.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include <runtime/rx_class.h>

namespace runtime_test {

class Animal : public KdRxObject
{
    KD_RX_DECLARE(Animal)
};

class Dog : public Animal
{
    KD_RX_DECLARE(Dog)
    int legs = 4;
};

/// A class registered by its name, deleted when the scope ends.
class ScopedClass
{
  public:
    explicit ScopedClass(const wchar_t* name, const wchar_t* parent = L"KdRxObject",
                         KdRxObject* (*pseudoConstructor)() = nullptr)
        : m_class(newKdRxClass(name, parent, 0, pseudoConstructor, nullptr, nullptr))
    {
    }
    ~ScopedClass() { remove(); }
    ScopedClass(const ScopedClass&) = delete;
    ScopedClass& operator=(const ScopedClass&) = delete;

    KdRxClass* get() const { return m_class; }
    KdRxClass* operator->() const { return m_class; }
    void remove() { deleteKdRxClass(m_class); }

  private:
    KdRxClass* m_class;
};

/// What stands in for an extension; only its address counts.
class Extension : public KdRxObject
{
};

/// An object whose class is told from outside.
class ObjectOf : public KdRxObject
{
  public:
    explicit ObjectOf(KdRxClass* rxClass) : m_class(rxClass) {}
    KdRxClass* isA() const override { return m_class; }

  private:
    KdRxClass* m_class;
};

} // namespace runtime_test
