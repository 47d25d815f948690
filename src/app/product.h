// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

/// What the product is called and where it is found, in one place.
namespace tessaly::Product {

inline constexpr const char* Name = "Tessaly";
inline constexpr const char* Version = "1.0.0";
inline constexpr const char* WebAddress = "tessaly.example";
inline constexpr const char* Contact = "contact@tessaly.example";

} // namespace tessaly::Product
