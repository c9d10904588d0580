// Draws the ship pictures: Images/Alpha/NAME.jpg (the whole picture) and
// Images/Omega/NAME.gif (its right half, the left half transparent).
//
//   shipgen IMAGES_FOLDER [--sheet FILE.png] [--only NAME,NAME...]
//
// --sheet also writes a contact sheet of the drawings for a look at them.

#include "gifwriter.h"
#include "ships.h"

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QStringList>

#include <cstdio>

namespace {

QImage Draw(const ShipDrawing& ship) {
    // The ship on a layer of its own, so that it can cast a faint shadow on
    // the dust of the sky behind it.
    QImage layer(360, 360, QImage::Format_ARGB32_Premultiplied);
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

    QImage image(360, 360, QImage::Format_ARGB32_Premultiplied);
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
    return image.convertToFormat(QImage::Format_RGB32);
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
    QString folder, sheetFile;
    QStringList only;
    for (int i = 0; i < args.size(); ++i) {
        if (args[i] == "--sheet" && i + 1 < args.size())
            sheetFile = args[++i];
        else if (args[i] == "--only" && i + 1 < args.size())
            only = args[++i].split(',');
        else
            folder = args[i];
    }
    if (folder.isEmpty()) {
        std::fprintf(stderr, "usage: shipgen IMAGES_FOLDER [--sheet FILE.png] [--only NAME,NAME...]\n");
        return 2;
    }
    QDir().mkpath(folder + "/Alpha");
    QDir().mkpath(folder + "/Omega");

    std::vector<QImage> drawn;
    QStringList names;
    int failures = 0;
    for (const ShipDrawing& ship : Ships()) {
        const QString name = QString::fromLatin1(ship.name);
        if (!only.isEmpty() && !only.contains(name)) continue;
        const QImage image = Draw(ship);
        if (!image.save(folder + "/Alpha/" + name + ".jpg", "JPG", 85)) {
            std::fprintf(stderr, "cannot write %s.jpg\n", ship.name);
            ++failures;
        }
        if (!WriteRightHalfGif(image, folder + "/Omega/" + name + ".gif")) {
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
