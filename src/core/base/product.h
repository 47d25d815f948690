#pragma once

/// What the product is called and where it is found, in one place.
namespace tessaly::Product {

inline constexpr const char* Name = "Tessaly";
inline constexpr const char* Version = "1.0.0";
/// By which the desktop knows the program: its desktop entry, icon and metainfo bear this name.
inline constexpr const char* DesktopName = "example.tessaly.Tessaly";
inline constexpr const char* WebAddress = "tessaly.example";
inline constexpr const char* Contact = "contact@tessaly.example";

} // namespace tessaly::Product
