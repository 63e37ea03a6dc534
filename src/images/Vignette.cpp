#include "images/Vignette.h"

#include <utility>

#include <QMouseEvent>
#include <QPainter>
#include <QTimer>

#include "images/LecteurImage.h"

namespace gastrelle {
namespace {

constexpr QSize pageAuMoins{900, 320};
constexpr int largeurVignette = 360;
constexpr int hauteurVignette = 480;

}  // namespace

Vignette::Vignette(const QString& nom, const QString& lisible, QWidget* page)
    : QWidget(page), page_(page) {
  setObjectName(nom);
  setAccessibleName(lisible);
  setToolTip(QStringLiteral("Cliquez sur l'image pour l'agrandir"));
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
  setFixedWidth(largeurVignette);
  setMouseTracking(true);
  page->installEventFilter(this);
  hide();
}

QSize Vignette::sizeHint() const {
  return {largeurVignette, hauteurVignette};
}

void Vignette::Montre(const QString& fichier) {
  fichier_ = fichier;
  image_ = {};
  aLire_ = !fichier.isEmpty();
  RegleVue();
  update();
}

void Vignette::RegleVue() {
  const bool place = page_->size().boundedTo(pageAuMoins) == pageAuMoins;
  setVisible(place && (aLire_ || !image_.isNull()));
}

void Vignette::Lit() {
  if (!std::exchange(aLire_, false)) {
    return;
  }
  const QSize place = QSize(largeurVignette, hauteurVignette) * devicePixelRatioF();
  image_ = LecteurImage(fichier_).Lit([&](const QSize& taille) {
    const bool tient = taille.boundedTo(place) == taille;
    return tient ? taille : taille.scaled(place, Qt::KeepAspectRatio);
  });
  RegleVue();
  update();
}

QRect Vignette::Cadre() const {
  const QSize naturelle = image_.size() / devicePixelRatioF();
  const bool tient = naturelle.width() <= width() && naturelle.height() <= height();
  const QSize taille = tient ? naturelle : naturelle.scaled(size(), Qt::KeepAspectRatio);
  return {QPoint((width() - taille.width()) / 2, 0), taille};
}

bool Vignette::eventFilter(QObject* objet, QEvent* evenement) {
  if (objet == page_ && evenement->type() == QEvent::Resize) {
    RegleVue();
  }
  return QWidget::eventFilter(objet, evenement);
}

void Vignette::paintEvent(QPaintEvent* /*evenement*/) {
  if (aLire_) {
    // This round of painting shows the text; the picture is read behind it.
    QTimer::singleShot(0, this, &Vignette::Lit);
    return;
  }
  QPainter peintre(this);
  peintre.setRenderHint(QPainter::SmoothPixmapTransform);
  peintre.drawImage(Cadre(), image_);
}

void Vignette::mouseMoveEvent(QMouseEvent* evenement) {
  const bool dessus = Cadre().contains(evenement->position().toPoint());
  setCursor(dessus ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void Vignette::mousePressEvent(QMouseEvent* evenement) {
  evenement->setAccepted(evenement->button() == Qt::LeftButton);
}

void Vignette::mouseReleaseEvent(QMouseEvent* evenement) {
  if (evenement->button() == Qt::LeftButton && Cadre().contains(evenement->position().toPoint()) &&
      surClic) {
    surClic();
  }
}

}  // namespace gastrelle
