#pragma once

#include <type_traits>
#include <utility>

namespace TarnwickKit::model {

/// Sets the member behind a property and emits `changed`, unless it already has the value.
template <typename Object, typename Value>
void changeProperty(Object& object, Value& member, std::type_identity_t<Value> value,
                    void (Object::*changed)()) {
    if (member == value)
        return;
    member = std::move(value);
    (object.*changed)();
}

} // namespace TarnwickKit::model
