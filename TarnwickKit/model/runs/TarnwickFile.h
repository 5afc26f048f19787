#pragma once

#include <string_view>

namespace TarnwickKit::model {

/// What marks a file that carries one run from one application to another; what proves it is that its content
/// decodes.
struct TarnwickFile {
    static constexpr std::string_view runExtension = "tarnwickrun";
};

} // namespace TarnwickKit::model
