/// How the value of a record is kept: one stateless factory for each way of storage.
#pragma once

#include <type_traits>

#include <database/color.h>
#include <plugin/res_buf.h>

/// Makes and frees what `ResBuf::Data` holds.
class type_factory
{
  public:
    virtual void construct(ResBuf::Data* data) const = 0;
    virtual void destroy(ResBuf::Data* data) const = 0;
};

/// Which member of `ResBuf::Data` points at a value of type `T`.
template <class T>
constexpr auto kSlot = nullptr;
template <>
inline constexpr auto kSlot<KdString> = &ResBuf::Data::text;
template <>
inline constexpr auto kSlot<KdGePoint3d> = &ResBuf::Data::point;
template <>
inline constexpr auto kSlot<KdCmColor> = &ResBuf::Data::color;

/// Values that a record points at: a text, a point or a colour.
template <class T>
class ptr_factory_for final : public type_factory
{
  public:
    void construct(ResBuf::Data* data) const override
    {
        using Storage = std::remove_pointer_t<std::remove_reference_t<decltype(data->*kSlot<T>)>>;
        data->*kSlot<T> = new Storage;
    }
    void destroy(ResBuf::Data* data) const override { delete (data->*kSlot<T>); }
};

/// Values that lie in the record's own eight bytes.
class mem_factory final : public type_factory
{
  public:
    void construct(ResBuf::Data* data) const override { *data = {}; }
    void destroy(ResBuf::Data*) const override {}
};

template <class T>
class factory_for;

/// Objects that somebody else owns: nothing is made and nothing freed. No kind of value uses it.
template <>
class factory_for<KdRxObject*> final : public type_factory
{
  public:
    void construct(ResBuf::Data*) const override {}
    void destroy(ResBuf::Data*) const override {}
};

/// The instances that serve all records.
struct ValueFactories
{
    ptr_factory_for<KdString> text;
    ptr_factory_for<KdGePoint3d> point;
    mem_factory plain;
    ptr_factory_for<KdCmColor> color;
};
extern const ValueFactories kValueFactories;

/// The factory of a code. Colours are not known here: the record looks for them first.
const type_factory& typeFactoryFor(int restype);
