#include "ui/controls/path_text.h"

#include <QFile>

namespace tessaly {

bool isExactPath(const QString& path) {
    return !path.contains(QChar::ReplacementCharacter) && !path.contains(QChar::Null) &&
           QFile::decodeName(QFile::encodeName(path)) == path;
}

QString problemWithName(const QString& path) {
    if (isExactPath(path))
        return {};
    return QStringLiteral("The name of this file is not valid UTF-8 text, so it cannot be "
                          "used:\r\n") %
           path;
}

} // namespace tessaly
