#include "ui/output/printers.h"

#include "ui/drawing/qt_values.h"

#include <QEventLoop>
#include <QLocale>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QProcess>
#include <QTimer>

#include <algorithm>
#include <clocale>
#include <cstdint>
#include <langinfo.h>
#include <string_view>

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

/// What the locale says of paper; where it says nothing, people who measure in inches use Letter.
bool usesLetterPaper() {
#ifdef __GLIBC__
    const std::string_view locale = std::setlocale(LC_PAPER, nullptr);
    if (locale != "C" && locale != "POSIX" && locale != "C.UTF-8") {
        // The library answers with a number, in millimetres, where a pointer is declared.
        constexpr std::uintptr_t WidthOfLetter = 216;
        return reinterpret_cast<std::uintptr_t>(::nl_langinfo(_NL_PAPER_WIDTH)) == WidthOfLetter;
    }
#endif
    return QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
}

QString sidesOf(QPrinter::DuplexMode mode) {
    switch (mode) {
    case QPrinter::DuplexLongSide:
        return u"two-sided-long-edge"_s;
    case QPrinter::DuplexShortSide:
        return u"two-sided-short-edge"_s;
    case QPrinter::DuplexNone:
        return u"one-sided"_s;
    case QPrinter::DuplexAuto:
        break;
    }
    return {};
}

std::vector<int> pagesOf(const QPrinter& printer, int pageCount) {
    const bool inRange = printer.printRange() == QPrinter::PageRange;
    std::vector<int> pages;
    for (int page = 1; page <= pageCount; ++page)
        if (!inRange || printer.pageRanges().contains(page))
            pages.push_back(page - 1);
    if (printer.pageOrder() == QPrinter::LastPageFirst)
        std::reverse(pages.begin(), pages.end());
    return pages;
}

/// What the system's print command said when it did not do its work.
QString complaintOf(QProcess& lp) {
    if (lp.error() == QProcess::FailedToStart)
        return u"the program \"lp\" is missing; install the package \"cups-client\""_s;
    const QString said = QString::fromLocal8Bit(lp.readAllStandardError()).trimmed();
    return said.isEmpty() ? u"the program \"lp\": "_s + lp.errorString() : said;
}

} // namespace

QStringList SheetSettings::options() const {
    QStringList options{u"-n"_s, QString::number(copies.count)};
    const auto add = [&options](const QString& name, const QString& value) {
        if (!value.isEmpty())
            options << u"-o"_s << name + u'=' + value;
    };
    add(u"collate"_s, copies.count == 1 ? QString() : copies.collated ? u"true"_s : u"false"_s);
    add(u"sides"_s, sides);
    add(u"media"_s, media);
    return options;
}

QStringList SystemPrinters::names() const {
    return QPrinterInfo::availablePrinterNames();
}

QString SystemPrinters::defaultName() const {
    return QPrinterInfo::defaultPrinterName();
}

PrinterOffer SystemPrinters::offerOf(const QString& name) const {
    const QPrinterInfo printer = QPrinterInfo::printerInfo(name);
    PrinterOffer offer;
    const auto add = [&offer](const QPageSize& paper) {
        const QSizeF points = paper.size(QPageSize::Point);
        offer.papers.push_back({paper.name(), {points.width(), points.height()}, paper.key()});
    };
    const QList<QPageSize> sizes = printer.supportedPageSizes();
    std::for_each(sizes.begin(), sizes.end(), add);
    const QPageSize usual = printer.defaultPageSize();
    if (const qsizetype place = sizes.indexOf(usual); place >= 0) {
        offer.usual = static_cast<std::size_t>(place);
    } else if (usual.isValid()) {
        offer.usual = offer.papers.size();
        add(usual);
    }
    if (offer.papers.empty())
        offer = customaryPapers();
    const auto sides = printer.supportedDuplexModes();
    offer.isTwoSided =
        sides.contains(QPrinter::DuplexLongSide) || sides.contains(QPrinter::DuplexShortSide);
    return offer;
}

// Qt prints without ever telling whether that worked, and cannot take back what it has begun; the
// system's own command takes a whole document or says why not.
Outcome SystemPrinters::print(const QString& name, const std::filesystem::path& pdf,
                              const QString& title, const SheetSettings& sheets) {
    QProcess lp;
    lp.start(u"lp"_s, QStringList{u"-d"_s, name, u"-t"_s, title} + sheets.options() +
                          QStringList{u"--"_s, QString::fromStdString(pdf.native())});
    const bool ended = lp.waitForStarted() && waitForEnd(lp);
    if (ended && lp.exitStatus() == QProcess::NormalExit && lp.exitCode() == 0)
        return Outcome::done();
    const QString complaint = complaintOf(lp);
    lp.kill();
    lp.waitForFinished();
    return Outcome::failed(name.toStdString() + ": cannot print: " + complaint.toStdString());
}

std::optional<PrintTarget> SystemPrinters::setUp(const PrintQuestion& question, QWidget* owner) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(question.title);
    if (!question.printer.isEmpty())
        printer.setPrinterName(question.printer);
    QPrintDialog dialog(&printer, owner);
    dialog.setOptions(QPrintDialog::PrintToFile | QPrintDialog::PrintPageRange |
                      QPrintDialog::PrintCollateCopies);
    dialog.setMinMax(1, question.pageCount);
    if (dialog.exec() != QDialog::Accepted)
        return {};
    return targetOf(printer, question.pageCount);
}

PrintTarget targetOf(const QPrinter& printer, int pageCount) {
    PrintTarget target;
    target.file = pathOf(printer.outputFileName());
    // Without a printer Qt takes to PDF, whether a file is named or not.
    if (target.file.empty() && printer.isValid() &&
        printer.outputFormat() == QPrinter::NativeFormat)
        target.printer = printer.printerName();
    const QRectF sheet = printer.pageLayout().fullRectPoints();
    target.paper = {sheet.width(), sheet.height()};
    target.pages = pagesOf(printer, pageCount);
    target.sheets.sides = sidesOf(printer.duplex());
    target.sheets.copies = {printer.copyCount(), printer.collateCopies(),
                            target.sheets.sides.startsWith(u"two"_s)};
    const QPageSize size = printer.pageLayout().pageSize();
    target.sheets.media = size.id() == QPageSize::Custom ? QString() : size.key();
    return target;
}

PrinterOffer customaryPapers() {
    constexpr std::size_t Letter = 1;
    static_assert(NamedPapers[Letter].name == "letter");
    PrinterOffer offer;
    for (const NamedPaper& paper : NamedPapers)
        offer.papers.push_back({QString::fromUtf8(paper.shown), paper.size});
    if (usesLetterPaper())
        offer.usual = Letter;
    return offer;
}

} // namespace tessaly
