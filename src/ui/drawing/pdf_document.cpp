#include "ui/drawing/pdf_document.h"

#include "core/base/product.h"

#include <qpdf/Pipeline.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFPageObjectHelper.hh>
#include <qpdf/QPDFWriter.hh>
#include <qpdf/QUtil.hh>

#include <cstdlib>
#include <exception>
#include <memory>

namespace tessaly {
namespace {

using Object = QPDFObjectHandle;

/// Appends what is written to a text.
class TextPipeline : public Pipeline {
public:
    explicit TextPipeline(std::string& text)
        : Pipeline("text", nullptr)
        , m_text(text) {}

    void write(const unsigned char* bytes, std::size_t count) override {
        m_text.append(reinterpret_cast<const char*>(bytes), count);
    }
    void finish() override {}

private:
    std::string& m_text;
};

/// Qt paints in colour spaces of its own naming: "/CSp cs 0 0 0 scn". This makes
/// "/DeviceGray cs 0 scn" of it where the three are alike.
class OneInk : public Object::TokenFilter {
public:
    void handleToken(const QPDFTokenizer::Token& token) override {
        m_operands.push_back(token);
        if (token.getType() != QPDFTokenizer::tt_word)
            return;
        const bool isFill = token.getValue() == "scn";
        const std::vector<double> mixed = numbers();
        if ((isFill || token.getValue() == "SCN") && mixed.size() == 3 && mixed[0] == mixed[1] &&
            mixed[1] == mixed[2])
            write("\n" + QUtil::double_to_string(mixed[0]) + (isFill ? " g" : " G"));
        else
            for (const auto& each : m_operands)
                writeToken(each);
        m_operands.clear();
    }
    void handleEOF() override {
        for (const auto& each : m_operands)
            writeToken(each);
        m_operands.clear();
    }

private:
    std::vector<double> numbers() const {
        std::vector<double> found;
        for (const auto& each : m_operands)
            if (each.getType() == QPDFTokenizer::tt_integer ||
                each.getType() == QPDFTokenizer::tt_real)
                found.push_back(std::atof(each.getValue().c_str()));
        return found;
    }

    std::vector<QPDFTokenizer::Token> m_operands;
};

std::string documentTime() {
    if (const char* epoch = std::getenv("SOURCE_DATE_EPOCH")) {
        const std::time_t seconds = std::atoll(epoch);
        std::tm utc{};
        if (::gmtime_r(&seconds, &utc) != nullptr)
            return QUtil::qpdf_time_to_pdf_time({utc.tm_year + 1900, utc.tm_mon + 1, utc.tm_mday,
                                                 utc.tm_hour, utc.tm_min, utc.tm_sec, 0});
    }
    return QUtil::qpdf_time_to_pdf_time(QUtil::get_current_qpdf_time());
}

class Document {
public:
    Document(std::string_view painted, const PdfExtras& extras)
        : m_extras(extras) {
        m_pdf.processMemoryFile("pages", painted.data(), painted.size());
        m_pages = QPDFPageDocumentHelper(m_pdf).getAllPages();
    }

    void complete() {
        describe();
        for (const PdfLink& link : m_extras.links)
            addLink(link);
        if (m_extras.oneInk)
            for (QPDFPageObjectHelper& page : m_pages)
                page.addContentTokenFilter(std::make_shared<OneInk>());
        if (m_extras.bookmarks.empty())
            return;
        Object outlines = m_pdf.makeIndirectObject(Object::newDictionary());
        outlines.replaceKey("/Type", Object::newName("/Outlines"));
        addBookmarks(m_extras.bookmarks, outlines, true);
        m_pdf.getRoot().replaceKey("/Outlines", outlines);
        m_pdf.getRoot().replaceKey("/PageMode", Object::newName("/UseOutlines"));
    }

    void write(std::string& finished) {
        TextPipeline text(finished);
        QPDFWriter writer(m_pdf);
        writer.setOutputPipeline(&text);
        writer.setObjectStreamMode(qpdf_o_generate);
        writer.setDeterministicID(true);
        writer.write();
    }

private:
    void describe() {
        Object info = m_pdf.makeIndirectObject(Object::newDictionary());
        const std::string program = std::string(Product::Name) + " " + Product::Version;
        const std::string time = documentTime();
        for (const auto& [key, value] :
             {std::pair("/Title", m_extras.title), std::pair("/Author", std::string(Product::Name)),
              std::pair("/Creator", program), std::pair("/CreationDate", time),
              std::pair("/ModDate", time)})
            info.replaceKey(key, Object::newUnicodeString(value));
        m_pdf.getTrailer().replaceKey("/Info", info);
    }

    QPDFPageObjectHelper& page(int number) { return m_pages.at(static_cast<std::size_t>(number)); }
    /// The document's y runs up.
    double heightOf(int number) {
        return page(number).getMediaBox().getArrayItem(3).getNumericValue();
    }
    static Object real(double value) { return Object::newReal(value, 2); }

    Object destination(const PdfPlace& place) {
        constexpr double Above = 6;
        return Object::newArray({page(place.page).getObjectHandle(), Object::newName("/XYZ"),
                                 real(0), real(heightOf(place.page) - place.top + Above),
                                 Object::newNull()});
    }

    void addLink(const PdfLink& link) {
        const double height = heightOf(link.from.page);
        const PdfPlace& area = link.from;
        Object annotation = Object::newDictionary();
        annotation.replaceKey("/Type", Object::newName("/Annot"));
        annotation.replaceKey("/Subtype", Object::newName("/Link"));
        annotation.replaceKey("/Rect",
                              Object::newArray({real(area.left), real(height - area.bottom),
                                                real(area.right), real(height - area.top)}));
        annotation.replaceKey("/Border", Object::newArray(std::vector(3, Object::newInteger(0))));
        annotation.replaceKey("/Dest", destination(link.to));
        Object pageObject = page(link.from.page).getObjectHandle();
        if (!pageObject.getKey("/Annots").isArray())
            pageObject.replaceKey("/Annots", Object::newArray());
        pageObject.getKey("/Annots").appendItem(m_pdf.makeIndirectObject(annotation));
    }

    /// Those below the first level are folded away.
    void addBookmarks(const std::vector<PdfBookmark>& bookmarks, Object parent, bool areShown) {
        Object previous = Object::newNull();
        for (const PdfBookmark& bookmark : bookmarks) {
            Object item = m_pdf.makeIndirectObject(Object::newDictionary());
            item.replaceKey("/Title", Object::newUnicodeString(bookmark.text));
            item.replaceKey("/Parent", parent);
            item.replaceKey("/Dest", destination(bookmark.target));
            if (previous.isNull()) {
                parent.replaceKey("/First", item);
            } else {
                item.replaceKey("/Prev", previous);
                previous.replaceKey("/Next", item);
            }
            if (!bookmark.children.empty())
                addBookmarks(bookmark.children, item, false);
            previous = item;
        }
        parent.replaceKey("/Last", previous);
        const auto count = static_cast<long long>(bookmarks.size());
        parent.replaceKey("/Count", Object::newInteger(areShown ? count : -count));
    }

    QPDF m_pdf;
    std::vector<QPDFPageObjectHelper> m_pages;
    const PdfExtras& m_extras;
};

} // namespace

Outcome finishPdf(std::string_view painted, const PdfExtras& extras, std::string& finished) {
    try {
        Document document(painted, extras);
        document.complete();
        document.write(finished);
        return Outcome::done();
    } catch (const std::exception& problem) {
        return Outcome::failed(std::string("the PDF document cannot be made: ") + problem.what());
    }
}

} // namespace tessaly
