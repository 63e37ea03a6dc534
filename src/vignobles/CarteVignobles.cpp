#include "vignobles/CarteVignobles.h"

#include <algorithm>
#include <array>
#include <utility>

#include <QEvent>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include "vignobles/CarteVignoblesDessin.h"
#include "vignobles/CarteVignoblesFormes.h"

namespace gastrelle {
namespace {

constexpr QSize taillePreferee{480, 460};
constexpr QSize encoreLisible{200, 200};

bool EstSurLaCarte(std::int32_t numero) {
  return numero >= premierVignoble &&
         numero < premierVignoble + static_cast<std::int32_t>(vignobles.size());
}

QString NomDe(std::int32_t numero) {
  return Lisible(vignobles[static_cast<std::size_t>(numero - premierVignoble)].nom);
}

/// The region whose area lies at a place of the country, 0 for none.
std::int32_t NumeroDeLAire(const QPointF& kilometres) {
  const auto& aires = FormesDeLaCarte().aires;
  const auto trouvee = std::find_if(aires.begin(), aires.end(), [&](const QPainterPath& aire) {
    return aire.contains(kilometres);
  });
  return trouvee == aires.end()
             ? 0
             : premierVignoble + static_cast<std::int32_t>(trouvee - aires.begin());
}

}  // namespace

CarteVignobles::CarteVignobles(const QString& nom, QWidget* parent) : QWidget(parent) {
  setObjectName(nom);
  setAccessibleName(QStringLiteral("Carte des vignobles de France"));
  setFocusPolicy(Qt::NoFocus);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setMouseTracking(true);
}

void CarteVignobles::MetEnValeur(std::int32_t numero) {
  enValeur_ = EstSurLaCarte(numero) ? numero : 0;
  setAccessibleDescription(
      enValeur_ == 0 ? QString() : QStringLiteral("Région en valeur : %1").arg(NomDe(enValeur_)));
  update();
}

QSize CarteVignobles::sizeHint() const {
  return taillePreferee;
}

QSize CarteVignobles::minimumSizeHint() const {
  return encoreLisible;
}

const PlanCarte& CarteVignobles::plan() {
  if (!plan_) {
    plan_ = PlanDeLaCarte(size(), police());
  }
  return *plan_;
}

QFont CarteVignobles::police() const {
  return PoliceDesNoms(size(), font());
}

void CarteVignobles::Oublie() {
  plan_.reset();
  fond_ = {};
  update();
}

std::int32_t CarteVignobles::NumeroSous(const QPointF& ou) {
  for (const NomPose& nom : plan().noms) {
    if (nom.cadre.contains(ou)) {
      return nom.numero;
    }
  }
  // A hillside is a few pixels wide: beside it is good enough where nothing else is.
  constexpr double aCote = 3;
  constexpr std::array<QPointF, 5> autour{QPointF(0, 0), QPointF(-aCote, 0), QPointF(aCote, 0),
                                          QPointF(0, -aCote), QPointF(0, aCote)};
  const QTransform versKilometres = plan().versEcran.inverted();
  for (const QPointF& ecart : autour) {
    if (const std::int32_t numero = NumeroDeLAire(versKilometres.map(ou + ecart)); numero != 0) {
      return numero;
    }
  }
  return 0;
}

void CarteVignobles::Pointe(std::int32_t numero) {
  if (std::exchange(pointe_, numero) != numero) {
    setCursor(numero != 0 ? Qt::PointingHandCursor : Qt::ArrowCursor);
    update();
  }
}

bool CarteVignobles::event(QEvent* evenement) {
  if (evenement->type() != QEvent::ToolTip) {
    return QWidget::event(evenement);
  }
  const auto* repos = static_cast<QHelpEvent*>(evenement);
  const std::int32_t numero = NumeroSous(repos->pos());
  QToolTip::showText(repos->globalPos(), numero != 0 ? NomDe(numero) : QString(), this);
  return true;
}

void CarteVignobles::changeEvent(QEvent* evenement) {
  QWidget::changeEvent(evenement);
  if (evenement->type() == QEvent::PaletteChange || evenement->type() == QEvent::FontChange) {
    Oublie();
  }
}

void CarteVignobles::resizeEvent(QResizeEvent* /*evenement*/) {
  Oublie();
}

void CarteVignobles::leaveEvent(QEvent* /*evenement*/) {
  Pointe(0);
}

void CarteVignobles::mouseMoveEvent(QMouseEvent* evenement) {
  Pointe(NumeroSous(evenement->position()));
}

void CarteVignobles::mousePressEvent(QMouseEvent* evenement) {
  evenement->setAccepted(evenement->button() == Qt::LeftButton);
  presse_ = evenement->isAccepted() ? NumeroSous(evenement->position()) : 0;
}

void CarteVignobles::mouseReleaseEvent(QMouseEvent* evenement) {
  const std::int32_t presse = std::exchange(presse_, 0);
  if (evenement->button() == Qt::LeftButton && presse != 0 && surRegion &&
      NumeroSous(evenement->position()) == presse) {
    surRegion(presse);
  }
}

const QPixmap& CarteVignobles::Fond() {
  const double finesse = devicePixelRatioF();
  if (fond_.isNull() || fond_.devicePixelRatio() != finesse) {
    fond_ = QPixmap(size() * finesse);
    fond_.setDevicePixelRatio(finesse);
    fond_.fill(Qt::transparent);
    QPainter peintre(&fond_);
    peintre.setFont(police());
    DessineCarte(peintre, plan(), TeintesDeLaCarte(palette()), size());
  }
  return fond_;
}

void CarteVignobles::paintEvent(QPaintEvent* /*evenement*/) {
  QPainter peintre(this);
  peintre.drawPixmap(0, 0, Fond());
  peintre.setFont(police());
  const TeintesCarte teintes = TeintesDeLaCarte(palette());
  const auto met = [&](std::int32_t numero, bool fort) {
    if (numero == 0) {
      return;
    }
    peintre.save();
    DessineEnValeur(peintre, plan(), teintes, NomSurLaCarte(plan(), numero, size(), police()),
                    fort);
    peintre.restore();
  };
  if (pointe_ != enValeur_) {
    met(pointe_, false);
  }
  met(enValeur_, true);
}

}  // namespace gastrelle
