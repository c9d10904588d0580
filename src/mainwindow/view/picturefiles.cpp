#include "mainwindow/view/picturefiles.h"

#include "catalogue/pictures.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace vantorel {

Q_LOGGING_CATEGORY(PicturesLog, "vantorel.pictures", QtWarningMsg)

namespace {

bool HoldsPictures(const QString& folder) { return QFileInfo(folder + QStringLiteral("/Alpha")).isDir(); }

// The picture in the file, or a null pixmap. Only a plain file is opened, so
// that a folder or a pipe under a picture's name cannot hold the window up,
// and it is opened to read and nothing else. Only a whole picture reaches the
// decoder.
QPixmap ReadWholePicture(const QString& path, PictureFile kind) {
    const QFileInfo info(path);
    QPixmap pixmap;
    if (info.isFile() && info.size() > 0 && info.size() <= qint64(kLargestPictureFile)) {
        QFile file(path);
        if (file.open(QIODevice::ReadOnly)) {
            const QByteArray bytes = file.read(qint64(kLargestPictureFile) + 1);
            if (IsWholePicture(std::string_view(bytes.constData(), std::size_t(bytes.size())), kind))
                pixmap.loadFromData(bytes, kind == PictureFile::Jpeg ? "JPG" : "GIF");
        }
    }
    if (pixmap.isNull())
        qCInfo(PicturesLog).noquote() << "cannot read" << path;
    else
        qCInfo(PicturesLog).noquote() << "read" << path << pixmap.width() << "x" << pixmap.height();
    return pixmap;
}

} // namespace

QString PictureFolder() {
    const QByteArray chosen = qgetenv("VANTOREL_IMAGES");
    if (!chosen.isEmpty()) {
        const QString folder = QString::fromLocal8Bit(chosen);
        qCInfo(PicturesLog).noquote() << "pictures from" << folder << "(VANTOREL_IMAGES)";
        return folder;
    }
    const QDir program(QCoreApplication::applicationDirPath());
    const QString beside = QDir::cleanPath(program.filePath(QStringLiteral("Images")));
    const QString installed = QDir::cleanPath(program.filePath(QStringLiteral(VANTOREL_INSTALLED_IMAGES)));
    for (const QString& folder : {beside, installed}) {
        if (!HoldsPictures(folder)) continue;
        qCInfo(PicturesLog).noquote() << "pictures from" << folder;
        return folder;
    }
    qCInfo(PicturesLog).noquote() << "no pictures in" << beside << "nor in" << installed;
    return installed;
}

QPixmap ReadPicture(const QString& folder, const QString& key, const QString& ending, double density) {
    const PictureFile kind = ending == QStringLiteral(".jpg") ? PictureFile::Jpeg : PictureFile::Gif;
    const QString plain = folder + QLatin1Char('/') + key + ending;
    if (density > 1.0) {
        const QString sharp = folder + QLatin1Char('/') + key + QStringLiteral("@2x") + ending;
        QPixmap pixmap = ReadWholePicture(sharp, kind);
        if (!pixmap.isNull()) {
            pixmap.setDevicePixelRatio(2.0);
            return pixmap;
        }
    }
    return ReadWholePicture(plain, kind);
}

} // namespace vantorel
