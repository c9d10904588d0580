#include "help/view/splash.h"

#include "gui/binding.h"
#include "gui/toplevel.h"
#include "help/view/splashart.h"

#include <QGuiApplication>
#include <QPaintEvent>
#include <QPainter>

namespace vantorel {

namespace {

// One picture: it paints the scene its field names, whenever it is on show.
class SplashPictureView final : public QWidget {
  public:
    SplashPictureView(const Picture& field, QWidget* parent) : QWidget(parent), m_field(field) {}

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter p(this);
        DrawSplashScene(p, QString::fromStdString(m_field.image()), size());
    }

  private:
    const Picture& m_field;
};

} // namespace

SplashView::SplashView(SplashWindow& s, QWidget* parent)
    : QWidget(parent, Qt::SplashScreen | Qt::FramelessWindowHint),
      m_twips(gui::Twips::forScreen(QGuiApplication::primaryScreen())) {
    setObjectName(QStringLiteral("SplashScreen"));
    for (int i = 0; i <= 2; ++i) {
        auto* picture = new SplashPictureView(s.Splash[i], this);
        picture->setObjectName(QStringLiteral("SplashScreen.Splash[%1]").arg(i));
        gui::BindPage(picture, s.Splash[i], m_twips);
    }
    new gui::TopLevel(this, s.Form, m_twips);
}

} // namespace vantorel
