#pragma once

#include <concepts>
#include <cstddef>
#include <functional>
#include <ranges>

namespace OndelCore::benchmark {

/// A value whose std::hash takes in every field: it lists them, as `hashFields` of its fields.
template <class Value>
concept HashesItsFields = requires(const Value& value) {
    { value.hash() } -> std::same_as<std::size_t>;
};

/// Whole numbers hash to themselves: the multiplication (by 2^64 divided by the golden ratio) spreads
/// neighbours apart, and the shift lets the upper half bear on the fields that follow.
constexpr std::size_t mixed(std::size_t hash, std::size_t field) {
    const std::size_t product = (hash ^ field) * 0x9e3779b97f4a7c15U;
    return product ^ (product >> 32);
}

template <class Field>
std::size_t hashField(const Field& field) {
    if constexpr (requires { std::hash<Field>{}(field); }) {
        return std::hash<Field>{}(field);
    } else {
        std::size_t hash = std::ranges::size(field);
        for (const auto& element : field)
            hash = mixed(hash, hashField(element));
        return hash;
    }
}

template <class... Fields>
std::size_t hashFields(const Fields&... fields) {
    std::size_t hash = 0;
    ((hash = mixed(hash, hashField(fields))), ...);
    return hash;
}

} // namespace OndelCore::benchmark

template <OndelCore::benchmark::HashesItsFields Value>
struct std::hash<Value> {
    std::size_t operator()(const Value& value) const { return value.hash(); }
};
