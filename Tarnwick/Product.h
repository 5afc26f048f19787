#pragma once

/// The application's names on the desktop. The files in packaging/linux repeat them.
namespace product {

inline constexpr const char* id = "tools.ondel.tarnwick";
inline constexpr const char* name = "Ondel Tarnwick";

} // namespace product
