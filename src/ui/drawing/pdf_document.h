#pragma once

#include "core/base/outcome.h"

#include <string>
#include <string_view>
#include <vector>

namespace tessaly {

/// An area on a page of a document, in points from the page's upper left corner.
struct PdfPlace {
    /// From 0.
    int page = 0;
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;
};

/// A bookmark: its text and where it leads; those below it.
struct PdfBookmark {
    std::string text;
    PdfPlace target;
    std::vector<PdfBookmark> children;
};

/// An area that leads to another place when it is clicked.
struct PdfLink {
    PdfPlace from;
    PdfPlace to;
};

/// What a PDF document has besides its painted pages.
struct PdfExtras {
    std::string title;
    std::vector<PdfBookmark> bookmarks;
    std::vector<PdfLink> links;
    /// Whether shades of grey, black among them, are written as such, which is one ink in print,
    /// instead of as mixtures of red, green and blue.
    bool oneInk = false;
};

/// Completes a document that Qt has painted with what Qt cannot write. Where the environment has
/// SOURCE_DATE_EPOCH the date is that one, and the same pages give the same bytes.
Outcome finishPdf(std::string_view painted, const PdfExtras& extras, std::string& finished);

} // namespace tessaly
