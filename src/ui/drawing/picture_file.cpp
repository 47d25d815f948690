#include "ui/drawing/picture_file.h"

#include "core/files/file_access.h"

#include <QBuffer>
#include <QImage>

namespace tessaly {

PictureFormat pictureFormatOf(const std::filesystem::path& path) {
    const QString extension = QString::fromStdString(path.extension().native());
    return extension.compare(QLatin1String(".png"), Qt::CaseInsensitive) == 0 ? PictureFormat::Png
                                                                              : PictureFormat::Bmp;
}

Outcome writePicture(const std::filesystem::path& path, const QImage& picture,
                     PictureFormat format) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!picture.save(&buffer, format == PictureFormat::Png ? "PNG" : "BMP"))
        return Outcome::failed(path.native() + ": the picture cannot be made");
    return replaceFile(path, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

} // namespace tessaly
