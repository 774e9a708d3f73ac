/// Which row of a table a provider answers a key by, told once for a whole class of entities.
#pragma once

#include <type_traits>

#include <plugin/entity_pe.h>
#include <providers/general_rows.h>

namespace lasting_rows {

/// The class that declares a member.
template <class Member>
struct DeclaredIn;
template <class Declaring, class Result, class... Arguments>
struct DeclaredIn<Result (Declaring::*)(Arguments...)>
{
    using Type = Declaring;
};

/// The class whose `PropertyValueGet` serves a provider.
template <class Provider>
using AnsweringClass = typename DeclaredIn<decltype(&Provider::PropertyValueGet)>::Type;

/// True if that class itself says which rows it answers by. What a class inherits says nothing of
/// its own way to answer.
template <class Answering, class = void>
constexpr bool kSaysRows = false;
template <class Answering>
constexpr bool kSaysRows<Answering, std::void_t<typename Answering::SaysRows>> =
    std::is_same_v<typename Answering::SaysRows, Answering>;

} // namespace lasting_rows

/// The row by which `provider`, which must be of that very class, answers a key for each entity of
/// `rxClass`; nothing if only asking it can tell.
template <class Provider>
LastingRow lastingRowOf(Provider& provider, const KdRxClass& rxClass, const KdString& key)
{
    using Answering = lasting_rows::AnsweringClass<Provider>;
    if constexpr (std::is_same_v<Answering, KdDbEntityPE>)
        return findLastingRow(generalRows(), key);
    else if constexpr (lasting_rows::kSaysRows<Answering>)
        return provider.Answering::lastingRow(rxClass, key);
    else
        return std::nullopt;
}
