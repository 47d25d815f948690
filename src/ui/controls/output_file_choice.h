#pragma once

#include "core/base/prompts.h"

#include <QString>

#include <string>

namespace tessaly {

class FNDialog;

/// Which file something is to be written to.
struct OutputFileQuestion {
    QString title;
    QString types;
    QString typesName;
    QString folder;
    /// Put behind a name that has none; may be empty.
    QString extension;
};

/// Asks for a file to write to, and once more when there is something in it already. Empty when the
/// user thinks better of it.
std::string chooseOutputFile(const OutputFileQuestion& question, FNDialog& picker,
                             Prompts& prompts);

} // namespace tessaly
