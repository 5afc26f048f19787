#pragma once

#include <type_traits>
#include <utility>

namespace TarnwickKit::model {

/// Gives the member behind a property its value and tells of it by `changed`, unless it has that value
/// already.
template <typename Object, typename Value>
void changeProperty(Object& object, Value& member, std::type_identity_t<Value> value,
                    void (Object::*changed)()) {
    if (member == value)
        return;
    member = std::move(value);
    (object.*changed)();
}

} // namespace TarnwickKit::model
