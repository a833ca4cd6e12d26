#include "desktop/pictures.h"

#include <png.h>

#include <QFile>
#include <QGuiApplication>
#include <QPixmap>
#include <bit>
#include <utility>

namespace desktop {
namespace {

QImage readPng(const QString& path) {
  png_image file{};
  file.version = PNG_IMAGE_VERSION;
  if (png_image_begin_read_from_file(&file, QFile::encodeName(path).constData()) == 0) {
    return {};
  }
  // QImage has a pixel as one number of 32 bits, libpng as four bytes.
  file.format = std::endian::native == std::endian::little ? PNG_FORMAT_BGRA : PNG_FORMAT_ARGB;
  QImage picture(static_cast<int>(file.width), static_cast<int>(file.height),
                 QImage::Format_ARGB32);
  const bool isRead =
      !picture.isNull() &&
      png_image_finish_read(&file, nullptr, picture.bits(),
                            static_cast<png_int_32>(picture.bytesPerLine()), nullptr) != 0;
  png_image_free(&file);
  return isRead ? picture : QImage();
}

}  // namespace

void addPicture(QIcon& icon, const QString& path, int scale) {
  QImage picture = readPng(path);
  if (!picture.isNull()) {
    picture.setDevicePixelRatio(scale);
    icon.addPixmap(QPixmap::fromImage(std::move(picture)));
  }
}

QIcon pictureOf(const QString& path) {
  QIcon icon;
  addPicture(icon, path);
  if (qGuiApp->devicePixelRatio() > 1) {
    QString twice = path;
    addPicture(icon, twice.insert(path.lastIndexOf(QLatin1Char('.')), QLatin1String("@2x")), 2);
  }
  return icon;
}

}  // namespace desktop
