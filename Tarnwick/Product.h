#pragma once

/// The application's names on the desktop. The files in packaging/linux repeat them.
namespace product {

inline constexpr const char* id = "tools.ondel.tarnwick";
inline constexpr const char* name = "Ondel Tarnwick";
/// Together with the name it says where the settings are.
inline constexpr const char* organization = "Ondel";

} // namespace product
