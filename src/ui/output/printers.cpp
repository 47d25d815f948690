#include "ui/output/printers.h"

#include <QEventLoop>
#include <QLocale>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QProcess>
#include <QTimer>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

/// What the system's own print command has to say, and to whom it does not answer.
constexpr int PatienceInMilliseconds = 60'000;

/// Waits for the end of a program while the windows live.
bool waitForEnd(QProcess& program) {
    QEventLoop loop;
    QTimer::singleShot(PatienceInMilliseconds, &loop, [&loop] { loop.exit(1); });
    QObject::connect(&program, &QProcess::finished, &loop, [&loop] { loop.exit(0); });
    QObject::connect(&program, &QProcess::errorOccurred, &loop, [&loop] { loop.exit(1); });
    return program.state() == QProcess::NotRunning || loop.exec() == 0;
}

} // namespace

QStringList SystemPrinters::names() const {
    return QPrinterInfo::availablePrinterNames();
}

QString SystemPrinters::defaultName() const {
    return QPrinterInfo::defaultPrinterName();
}

PaperSize SystemPrinters::paperOf(const QString& name) const {
    const QPageSize size = QPrinterInfo::printerInfo(name).defaultPageSize();
    if (!size.isValid())
        return customaryPaper();
    const QSizeF points = size.size(QPageSize::Point);
    return {points.width(), points.height()};
}

// Qt prints without ever telling whether that worked, and cannot take back what it has begun; the
// system's own command takes a whole document or says why not.
Outcome SystemPrinters::print(const QString& name, const std::filesystem::path& pdf,
                              const QString& title) {
    QProcess lp;
    lp.start(u"lp"_s,
             {u"-d"_s, name, u"-t"_s, title, u"--"_s, QString::fromStdString(pdf.native())});
    const bool ended = lp.waitForStarted() && waitForEnd(lp);
    if (ended && lp.exitStatus() == QProcess::NormalExit && lp.exitCode() == 0)
        return Outcome::done();
    const QString said = QString::fromLocal8Bit(lp.readAllStandardError()).trimmed();
    lp.kill();
    lp.waitForFinished();
    const QString reason =
        !said.isEmpty() ? said : u"the program \"lp\" does not run: "_s + lp.errorString();
    return Outcome::failed(name.toStdString() + ": cannot print: " + reason.toStdString());
}

bool SystemPrinters::setUp(QPrinter& printer, QWidget* owner) {
    QPrintDialog dialog(&printer, owner);
    dialog.setOptions(QPrintDialog::PrintToFile);
    return dialog.exec() == QDialog::Accepted;
}

PaperSize customaryPaper() {
    constexpr std::size_t A4 = 0;
    constexpr std::size_t Letter = 1;
    const bool inches = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
    return NamedPapers[inches ? Letter : A4].size;
}

} // namespace tessaly
