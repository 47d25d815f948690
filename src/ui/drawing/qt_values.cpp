#include "ui/drawing/qt_values.h"

namespace tessaly {
namespace {

QColor slotColour(const Appearance& appearance, std::size_t slot) {
    return toQColor(appearance.SchemeColours[slot]);
}

double contrast(const QColor& one, const QColor& other) {
    return contrastRatio(toColour(one), toColour(other));
}

/// What is selected on `ground`: the menu's colour where it stands out there.
QColor highlightOn(const QColor& ground, const QColor& menu) {
    constexpr double LeastContrast = 3; // of WCAG 2, for the state of a control
    return contrast(menu, ground) >= LeastContrast ? menu : standingOut(ground, LeastContrast);
}

/// The item under the pointer: away from the text's colour, so that the text stays as it is, or,
/// where the ground leaves no room for that, a little towards it.
QColor selectedOn(const QColor& ground) {
    constexpr double LeastDifference = 1.2;
    const QColor text = readableOn(ground);
    const QColor away = blended(ground, readableOn(text), 0.3);
    if (contrast(away, ground) >= LeastDifference)
        return away;
    return blended(ground, text, 0.18);
}

/// A blue that reads on `ground`: on a middle tone little of the blue remains.
QColor linkOn(const QColor& ground) {
    constexpr double LeastContrast = 4.5; // of WCAG 2, for text
    const QColor text = readableOn(ground);
    const QColor blue = text == QColor(Qt::black) ? QColor(11, 80, 190) : QColor(140, 185, 255);
    for (int tenths = 0; tenths < 10; ++tenths) {
        const QColor link = blended(blue, text, tenths / 10.0);
        if (contrast(link, ground) >= LeastContrast)
            return link;
    }
    return text;
}

/// Sets a ground in every state, and the text on it with its fading while disabled.
void setPair(QPalette& palette, QPalette::ColorRole groundRole, const QColor& ground,
             QPalette::ColorRole textRole) {
    palette.setColor(groundRole, ground);
    palette.setColor(textRole, readableOn(ground));
    palette.setColor(QPalette::Disabled, textRole, fadedOn(ground));
}

} // namespace

QColor toQColor(Colour colour) {
    return {RedOf(colour), GreenOf(colour), BlueOf(colour)};
}

Colour toColour(const QColor& colour) {
    return RGB(colour.red(), colour.green(), colour.blue());
}

QColor blended(const QColor& from, const QColor& to, double amount) {
    const auto mix = [amount](int a, int b) { return qRound(a + (b - a) * amount); };
    return {mix(from.red(), to.red()), mix(from.green(), to.green()), mix(from.blue(), to.blue())};
}

QColor readableOn(const QColor& background) {
    return toQColor(readableOn(toColour(background)));
}

QColor standingOut(const QColor& background, double least) {
    constexpr int Steps = 32;
    const QColor text = readableOn(background);
    for (int step = 1; step < Steps; ++step) {
        const QColor shade = blended(background, text, static_cast<double>(step) / Steps);
        if (contrast(shade, background) >= least)
            return shade;
    }
    return text;
}

QColor fadedOn(const QColor& background) {
    // What WCAG 2 asks of large text; a tone of middle grey leaves little room to fade.
    constexpr double LeastContrast = 3.0;
    const QColor half = blended(background, readableOn(background), 0.5);
    return contrast(half, background) >= LeastContrast ? half
                                                       : standingOut(background, LeastContrast);
}

QPalette schemePalette(const Appearance& appearance) {
    const QColor ground = slotColour(appearance, slot::Background);
    const QColor button = slotColour(appearance, slot::Button);
    const QColor highlight = highlightOn(ground, slotColour(appearance, slot::Menu));
    QPalette palette(button, ground);
    setPair(palette, QPalette::Window, ground, QPalette::WindowText);
    setPair(palette, QPalette::Base, ground, QPalette::Text);
    setPair(palette, QPalette::Button, button, QPalette::ButtonText);
    setPair(palette, QPalette::ToolTipBase, ground, QPalette::ToolTipText);
    setPair(palette, QPalette::Highlight, highlight, QPalette::HighlightedText);
    palette.setColor(QPalette::AlternateBase, blended(ground, readableOn(ground), 0.06));
    palette.setColor(QPalette::BrightText, readableOn(ground));
    palette.setColor(QPalette::PlaceholderText, fadedOn(ground));
    palette.setColor(QPalette::Link, linkOn(ground));
    palette.setColor(QPalette::LinkVisited, linkOn(ground));
    return palette;
}

QString menuStyleSheet(const Appearance& appearance) {
    const QColor ground = slotColour(appearance, slot::Menu);
    const QColor text = readableOn(ground);
    const QColor line = blended(ground, text, 0.2);
    const QString sheet = QStringLiteral(
        "QMenuBar, QMenu { background: %1; color: %2; }"
        "QMenuBar { padding: 2px 6px; }"
        "QMenuBar::item { background: transparent; padding: 5px 10px; border-radius: 4px; }"
        "QMenuBar::item:selected, QMenu::item:selected { background: %3; }"
        "QMenu { border: 1px solid %4; padding: 4px; }"
        "QMenu::item { padding: 6px 28px 6px 20px; border-radius: 4px; }"
        "QMenuBar::item:disabled, QMenu::item:disabled { background: transparent; color: %5; }"
        "QMenu::separator { height: 1px; background: %4; margin: 4px 10px; }");
    return sheet.arg(ground.name(), text.name(), selectedOn(ground).name(), line.name(),
                     fadedOn(ground).name());
}

const char* schemeLikeDesktop(const QPalette& desktop) {
    const bool isDark = desktop.color(QPalette::Window).lightness() <
                        desktop.color(QPalette::WindowText).lightness();
    return isDark ? DarkScheme : DefaultScheme;
}

} // namespace tessaly
