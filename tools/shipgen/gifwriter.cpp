#include "gifwriter.h"

#include <gif_lib.h>

#include <fcntl.h>
#include <unistd.h>

#include <memory>
#include <vector>

namespace {

struct MapDeleter {
    void operator()(ColorMapObject* map) const { GifFreeMapObject(map); }
};

} // namespace

bool WriteRightHalfGif(const QImage& source, const QString& path) {
    const QImage image = source.convertToFormat(QImage::Format_RGB32);
    const int width = image.width();
    const int height = image.height();
    const int half = width / 2;
    const int opaque = width - half;

    // The right half is quantised to 255 colours; index 255 is the
    // transparent colour of the left half.
    constexpr int kTransparent = 255;
    const std::size_t count = static_cast<std::size_t>(opaque) * static_cast<std::size_t>(height);
    std::vector<GifByteType> red(count), green(count), blue(count), indices(count);
    for (int y = 0; y < height; ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < opaque; ++x) {
            const std::size_t at = static_cast<std::size_t>(y) * static_cast<std::size_t>(opaque) + x;
            const QRgb pixel = line[half + x];
            red[at] = static_cast<GifByteType>(qRed(pixel));
            green[at] = static_cast<GifByteType>(qGreen(pixel));
            blue[at] = static_cast<GifByteType>(qBlue(pixel));
        }
    }
    int colours = kTransparent;
    std::vector<GifColorType> palette(256);
    if (GifQuantizeBuffer(static_cast<unsigned>(opaque), static_cast<unsigned>(height), &colours, red.data(),
                          green.data(), blue.data(), indices.data(), palette.data()) == GIF_ERROR)
        return false;

    std::unique_ptr<ColorMapObject, MapDeleter> map(GifMakeMapObject(256, nullptr));
    if (!map) return false;
    for (int i = 0; i < 256; ++i)
        map->Colors[i] = i < colours ? palette[static_cast<std::size_t>(i)] : GifColorType{0, 0, 0};

    // Readable by all, as the JPEG files are (giflib's own opening makes the
    // file private to its owner).
    const int file = open(path.toLocal8Bit().constData(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
    if (file < 0) return false;
    int error = 0;
    GifFileType* gif = EGifOpenFileHandle(file, &error);
    if (!gif) {
        close(file);
        return false;
    }
    EGifSetGifVersion(gif, true);
    bool ok = EGifPutScreenDesc(gif, width, height, 8, 0, map.get()) != GIF_ERROR;

    GraphicsControlBlock control{};
    control.DisposalMode = DISPOSAL_UNSPECIFIED;
    control.UserInputFlag = false;
    control.DelayTime = 0;
    control.TransparentColor = kTransparent;
    GifByteType extension[4];
    const std::size_t length = EGifGCBToExtension(&control, extension);
    ok = ok && EGifPutExtension(gif, GRAPHICS_EXT_FUNC_CODE, static_cast<int>(length), extension) != GIF_ERROR;
    ok = ok && EGifPutImageDesc(gif, 0, 0, width, height, false, nullptr) != GIF_ERROR;

    std::vector<GifByteType> row(static_cast<std::size_t>(width), kTransparent);
    for (int y = 0; ok && y < height; ++y) {
        for (int x = 0; x < opaque; ++x)
            row[static_cast<std::size_t>(half + x)] =
                indices[static_cast<std::size_t>(y) * static_cast<std::size_t>(opaque) + x];
        ok = EGifPutLine(gif, row.data(), width) != GIF_ERROR;
    }
    if (EGifCloseFile(gif, &error) == GIF_ERROR) ok = false;
    return ok;
}
