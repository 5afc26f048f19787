#pragma once

#include <cstddef>
#include <functional>
#include <ranges>

namespace OndelCore {

/// A value whose std::hash covers every field: its `hash` is `hashFields` of its fields.
template <class Value>
concept HashesItsFields = requires(const Value& value) { std::size_t{value.hash()}; };

/// Integers hash to themselves. The multiplication (by 2^64 divided by the golden ratio) spreads neighbours,
/// and the shift makes the upper half affect the fields that follow.
constexpr std::size_t mixed(std::size_t hash, std::size_t field) {
    const std::size_t product = (hash ^ field) * 0x9e3779b97f4a7c15U;
    return product ^ (product >> 32);
}

/// `Field` has a std::hash or a Qt hash function, or is a range of such fields.
template <class Field>
std::size_t hashField(const Field& field) {
    if constexpr (requires { std::hash<Field>{}(field); }) {
        return std::hash<Field>{}(field);
    } else if constexpr (requires { qHash(field); }) {
        return qHash(field);
    } else {
        std::size_t hash = std::ranges::size(field);
        for (const auto& element : field)
            hash = mixed(hash, hashField(element));
        return hash;
    }
}

/// The hash of a value with these fields, in their order.
template <class... Fields>
std::size_t hashFields(const Fields&... fields) {
    std::size_t hash = 0;
    ((hash = mixed(hash, hashField(fields))), ...);
    return hash;
}

} // namespace OndelCore

template <OndelCore::HashesItsFields Value>
struct std::hash<Value> {
    std::size_t operator()(const Value& value) const { return value.hash(); }
};
