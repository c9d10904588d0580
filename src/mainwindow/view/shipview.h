#pragma once

// The ship picture of the main window: vessel Alpha's ship, vessel Omega's
// right half over it, the line between them and the firing arcs in use. A
// thin view of the picture fields of MainSelection; it keeps nothing but the
// pictures it has read from disk.

#include <QHash>
#include <QPixmap>
#include <QString>
#include <QWidget>

namespace vantorel {

struct Calculator;

class ShipView final : public QWidget {
    Q_OBJECT

  public:
    ShipView(Calculator& c, QWidget* parent);
    ~ShipView() override;

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    // Reads the pictures now named by AlphaImage and OmegaImage, once each.
    void loadPictures();
    void loadPicture(const QString& key);
    // The picture read for "Alpha/NAME" or "Omega/NAME"; null if unreadable.
    QPixmap picture(const QString& key) const;

    Calculator& m_c;
    QString m_folder; // holds Alpha/ and Omega/
    QHash<QString, QPixmap> m_pictures;
};

} // namespace vantorel
