#pragma once

#include <QGuiApplication>

#include <optional>

namespace tessaly {

/// What drawing needs of Qt, without any display, for as long as it lives. Qt itself keeps silent.
/// In a program that has an application already it is that one.
class Offscreen {
public:
    Offscreen();
    Offscreen(const Offscreen&) = delete;
    Offscreen& operator=(const Offscreen&) = delete;

private:
    int m_argc = 1;
    char m_name[12] = "tessaly-cli";
    char* m_argv[2] = {m_name, nullptr};
    std::optional<QGuiApplication> m_application;
};

} // namespace tessaly
