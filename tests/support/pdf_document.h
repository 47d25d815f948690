#pragma once

#include <gtest/gtest.h>

#include <QPointF>
#include <QProcess>
#include <QRectF>
#include <QRegularExpression>
#include <QString>
#include <QStringList>

#include <filesystem>
#include <vector>

namespace tessaly {

/// A PDF file as another program reads it.
class PdfDocument {
public:
    struct Word {
        QString text;
        QRectF box; // in points from the page's upper left corner
    };

    explicit PdfDocument(const std::filesystem::path& path)
        : m_path(QString::fromStdString(path.string())) {}

    int pageCount() const { return info(QStringLiteral("Pages")).toInt(); }
    /// A value of the file's properties.
    QString info(const QString& name) const {
        const QRegularExpression line(QStringLiteral("^%1: +(.*)$").arg(name),
                                      QRegularExpression::MultilineOption);
        return line.match(run(QStringLiteral("pdfinfo"), {m_path})).captured(1);
    }

    /// One line for each font: name, kind, encoding, and whether it is in the file.
    QStringList fonts() const {
        return run(QStringLiteral("pdffonts"), {m_path})
            .split(QLatin1Char('\n'), Qt::SkipEmptyParts)
            .mid(2);
    }

    /// The whole document in plain text, as it is written; what is wrong with it fails the test.
    QString content() const {
        run(QStringLiteral("qpdf"), {QStringLiteral("--check"), m_path});
        return run(QStringLiteral("qpdf"), {QStringLiteral("--qdf"), m_path, QStringLiteral("-")});
    }

    /// The words of a page, from 1.
    std::vector<Word> words(int page) const {
        static const QRegularExpression Box(QStringLiteral(
            R"re(<word xMin="([\d.-]+)" yMin="([\d.-]+)" xMax="([\d.-]+)" yMax="([\d.-]+)">(.*)</word>)re"));
        const QString number = QString::number(page);
        const QString text = run(QStringLiteral("pdftotext"),
                                 {QStringLiteral("-bbox"), QStringLiteral("-f"), number,
                                  QStringLiteral("-l"), number, m_path, QStringLiteral("-")});
        std::vector<Word> words;
        auto matches = Box.globalMatch(text);
        while (matches.hasNext()) {
            const auto match = matches.next();
            const auto at = [&](int group) { return match.captured(group).toDouble(); };
            words.push_back(
                {match.captured(5), QRectF(QPointF(at(1), at(2)), QPointF(at(3), at(4)))});
        }
        return words;
    }

private:
    static QString run(const QString& program, const QStringList& arguments) {
        QProcess process;
        process.start(program, arguments);
        const bool ran = process.waitForFinished() && process.exitCode() == 0;
        EXPECT_TRUE(ran) << program.toStdString() << ": " << process.errorString().toStdString()
                         << " (script/bootstrap installs poppler-utils) "
                         << process.readAllStandardError().toStdString();
        return QString::fromUtf8(process.readAllStandardOutput());
    }

    QString m_path;
};

} // namespace tessaly
