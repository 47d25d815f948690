#pragma once

#include "core/session/options_editor.h"

#include <QColor>
#include <QDialog>
#include <QWidget>

#include <filesystem>

class QLabel;

namespace tessaly {

class OptionsForm;

/// A level line, in a colour and of a width in pixels.
class LineSample : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    QColor colour() const { return m_colour; }
    int lineWidth() const { return m_width; }
    void setLine(const QColor& colour, int width);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor m_colour = Qt::black;
    int m_width = 1;
};

/// A hexagon filled with a colour.
class FillSample : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    QColor fill() const { return m_fill; }
    void setFill(const QColor& fill);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor m_fill = Qt::white;
};

/// The options dialog: shows the samples of an `OptionsEditor` and tells it what the user does. It
/// is made once and hidden between uses.
class Form2x : public QDialog {
    Q_OBJECT

public:
    /// Both must outlive the dialog. `programFolder` holds the library of colour schemes.
    Form2x(Appearance& settings, const std::filesystem::path& programFolder, Prompts& prompts,
           QWidget* parent = nullptr);

    /// Shows the settings in force; the samples of an earlier use are dropped.
    void showOptions();
    /// Names the scheme in force over the list of schemes.
    void showSchemeInForce();

Q_SIGNALS:
    /// The settings have changed, and the dialog is gone: all that shows them is to be redrawn.
    void applied();

private:
    void connectSchemes();
    void connectSamples();
    void connectDialogButtons();

    /// Lets the editor do something, and shows the samples as they are then.
    template <class Action>
    void react(Action action);
    template <class Action>
    void reactWithScheme(Action action);
    template <class Action>
    void reactWithLibrary(Action action);

    void activate();
    void showSchemes();
    void showScheme();
    void showSchemeCaption();
    void showSamples();
    void showNumberSample(QLabel& label, Colour colour);
    void apply();

    OptionsEditor m_editor;
    OptionsForm* m_form;
};

} // namespace tessaly
