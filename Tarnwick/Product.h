#pragma once

/// The names by which the desktop knows the application. They stand in its packages' files too.
namespace product {

inline constexpr const char* id = "tools.ondel.tarnwick";
inline constexpr const char* name = "Ondel Tarnwick";

} // namespace product
