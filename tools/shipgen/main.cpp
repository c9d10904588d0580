// Draws the ship pictures: Images/Alpha/NAME.jpg (the whole picture) and
// Images/Omega/NAME.gif (its right half, the left half transparent).
//
//   shipgen IMAGES_FOLDER [--scale 2] [--sheet FILE.png] [--only NAME,NAME...]
//   shipgen --icons ICONS_FOLDER [--sheet FILE.png]
//
// --scale 2 draws the same pictures at twice the size, NAME@2x.jpg and
// NAME@2x.gif, which the program reads on a screen of high density.
// --sheet also writes a contact sheet of the drawings for a look at them.
// --icons draws the program's icon in the sizes of an icon theme, as
// ICONS_FOLDER/hicolor/SIZExSIZE/apps/vantorel.png.

#include "gifwriter.h"
#include "icon.h"
#include "ships.h"

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QStringList>

#include <cstdio>

namespace {

// Every picture is laid out on 360 by 360; `scale` multiplies its pixels,
// not its drawing.
QImage Canvas(int scale) {
    QImage image(360 * scale, 360 * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    return image;
}

QImage Draw(const ShipDrawing& ship, int scale) {
    // The ship on a layer of its own, so that it can cast a faint shadow on
    // the dust of the sky behind it.
    QImage layer = Canvas(scale);
    layer.fill(Qt::transparent);
    {
        QPainter p(&layer);
        p.setRenderHint(QPainter::Antialiasing);
        Artist art(p);
        ship.draw(art);
    }
    QImage shadow = layer;
    {
        QPainter p(&shadow);
        p.setCompositionMode(QPainter::CompositionMode_SourceIn);
        p.fillRect(shadow.rect(), QColor(0, 0, 0));
    }

    QImage image = Canvas(scale);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    SpaceBackground(p);
    for (int k = 1; k <= 4; ++k) {
        p.setOpacity(0.16);
        p.drawImage(QPointF(2.0 * k, 2.5 * k), shadow);
    }
    p.setOpacity(1.0);
    p.drawImage(0, 0, layer);
    p.end();
    image.setDevicePixelRatio(1.0);
    return image.convertToFormat(QImage::Format_RGB32);
}

// The icons on a light and a dark ground, each at its size and below it
// magnified to 256 pixels, so that its pixels can be seen.
QImage IconSheet(const std::vector<QImage>& icons) {
    const int cell = 264;
    QImage sheet(cell * static_cast<int>(icons.size()), 2 * (256 + cell), QImage::Format_RGB32);
    QPainter p(&sheet);
    for (int ground = 0; ground < 2; ++ground) {
        const int top = ground * (256 + cell);
        p.fillRect(0, top, sheet.width(), 256 + cell, ground == 0 ? QColor(236, 236, 236) : QColor(48, 48, 52));
        for (std::size_t i = 0; i < icons.size(); ++i) {
            const int x = static_cast<int>(i) * cell + 4;
            p.drawImage(x, top + 4, icons[i]);
            p.drawImage(QRect(x, top + 4 + 256 + 4, 256, 256), icons[i]);
        }
    }
    return sheet;
}

bool DrawIcons(const QString& folder, const QString& sheetFile) {
    bool ok = true;
    std::vector<QImage> icons;
    for (int size : {16, 22, 24, 32, 48, 64, 128, 256}) {
        const QString dir = QStringLiteral("%1/hicolor/%2x%2/apps").arg(folder).arg(size);
        QDir().mkpath(dir);
        icons.push_back(DrawIcon(size));
        if (!icons.back().save(dir + "/vantorel.png")) {
            std::fprintf(stderr, "cannot write the icon of %d pixels\n", size);
            ok = false;
        }
    }
    if (!sheetFile.isEmpty()) IconSheet(icons).save(sheetFile);
    return ok;
}

QImage Sheet(const std::vector<QImage>& images, const QStringList& names, int columns, int cell) {
    const int rows = (static_cast<int>(images.size()) + columns - 1) / columns;
    QImage sheet(columns * cell, rows * (cell + 14), QImage::Format_RGB32);
    sheet.fill(QColor(40, 40, 40));
    QPainter p(&sheet);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    p.setPen(Qt::white);
    for (std::size_t i = 0; i < images.size(); ++i) {
        const int x = static_cast<int>(i) % columns * cell;
        const int y = static_cast<int>(i) / columns * (cell + 14);
        p.drawImage(QRect(x, y, cell, cell), images[i]);
        p.drawText(QRect(x, y + cell, cell, 14), Qt::AlignCenter, names[static_cast<int>(i)]);
    }
    return sheet;
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QStringList args = app.arguments();
    args.removeFirst();
    QString folder, sheetFile, icons;
    QStringList only;
    int scale = 1;
    for (int i = 0; i < args.size(); ++i) {
        if (args[i] == "--sheet" && i + 1 < args.size())
            sheetFile = args[++i];
        else if (args[i] == "--icons" && i + 1 < args.size())
            icons = args[++i];
        else if (args[i] == "--scale" && i + 1 < args.size())
            scale = args[++i].toInt();
        else if (args[i] == "--only" && i + 1 < args.size())
            only = args[++i].split(',');
        else
            folder = args[i];
    }
    if (!icons.isEmpty()) return DrawIcons(icons, sheetFile) ? 0 : 1;
    if (folder.isEmpty() || scale < 1 || scale > 9) {
        std::fprintf(stderr, "usage: shipgen IMAGES_FOLDER [--scale 2] [--sheet FILE.png] [--only NAME,NAME...]\n"
                             "       shipgen --icons ICONS_FOLDER [--sheet FILE.png]\n");
        return 2;
    }
    // Qt reads NAME@2x as a picture of two device pixels to the pixel.
    const QString suffix = scale == 1 ? QString() : QStringLiteral("@%1x").arg(scale);
    QDir().mkpath(folder + "/Alpha");
    QDir().mkpath(folder + "/Omega");

    std::vector<QImage> drawn;
    QStringList names;
    int failures = 0;
    for (const ShipDrawing& ship : Ships()) {
        const QString name = QString::fromLatin1(ship.name);
        if (!only.isEmpty() && !only.contains(name)) continue;
        const QImage image = Draw(ship, scale);
        if (!image.save(folder + "/Alpha/" + name + suffix + ".jpg", "JPG", 85)) {
            std::fprintf(stderr, "cannot write %s.jpg\n", ship.name);
            ++failures;
        }
        if (!WriteRightHalfGif(image, folder + "/Omega/" + name + suffix + ".gif")) {
            std::fprintf(stderr, "cannot write %s.gif\n", ship.name);
            ++failures;
        }
        drawn.push_back(image);
        names << name;
    }
    // A few drawings are shown at full size, many as thumbnails.
    const bool few = drawn.size() <= 4;
    if (!sheetFile.isEmpty()) Sheet(drawn, names, few ? 4 : 6, few ? 360 : 240).save(sheetFile);
    std::printf("%d ships drawn\n", static_cast<int>(drawn.size()));
    return failures == 0 ? 0 : 1;
}
