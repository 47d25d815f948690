#include "ui/drawing/qt_colour.h"

#include "core/options/appearance.h"

namespace tessaly {

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

QColor fadedOn(const QColor& background) {
    // What WCAG 2 asks of large text; a tone of middle grey leaves little room to fade.
    constexpr double LeastContrast = 3.0;
    const QColor text = readableOn(background);
    double fading = 0.5;
    while (fading > 0 && contrastRatio(toColour(blended(text, background, fading)),
                                       toColour(background)) < LeastContrast)
        fading -= 0.05;
    return blended(text, background, fading > 0 ? fading : 0);
}

} // namespace tessaly
