#include "controles/LienTexte.h"

#include <utility>

#include <QKeyEvent>
#include <QMouseEvent>

#include "controles/Touches.h"

namespace gastrelle {

LienTexte::LienTexte(LigneTexte& boite, QString infobulle)
    : QObject(&boite), boite_(boite), infobulle_(std::move(infobulle)) {
  boite_.RendLectureSeule();
  ordinaire_ = boite_.cursor();
  boite_.installEventFilter(this);
  connect(&boite_, &QLineEdit::textChanged, this, [this] { Arme(); });
  Arme();
}

void LienTexte::Arme() {
  const bool arme = !boite_.text().isEmpty();
  boite_.setCursor(arme ? QCursor(Qt::PointingHandCursor) : ordinaire_);
  boite_.setToolTip(arme ? infobulle_ : QString());
  QFont police = boite_.font();
  police.setUnderline(arme);
  boite_.setFont(police);
}

bool LienTexte::AcheveUnClic(const QEvent& evenement) {
  const auto gauche = [&] {
    return static_cast<const QMouseEvent&>(evenement).button() == Qt::LeftButton;
  };
  switch (evenement.type()) {
    case QEvent::MouseButtonPress:
      pressee_ = gauche();
      return false;
    case QEvent::MouseButtonRelease: {
      const QPoint ou = static_cast<const QMouseEvent&>(evenement).position().toPoint();
      return gauche() && std::exchange(pressee_, false) && boite_.rect().contains(ou) &&
             !boite_.hasSelectedText();
    }
    default:
      return false;
  }
}

bool LienTexte::eventFilter(QObject* objet, QEvent* evenement) {
  const auto* touche =
      evenement->type() == QEvent::KeyPress ? static_cast<QKeyEvent*>(evenement) : nullptr;
  // Held down, it would open one window after the other.
  const bool entree = touche != nullptr && EstEntree(*touche) && !touche->isAutoRepeat();
  if ((entree || AcheveUnClic(*evenement)) && !boite_.text().isEmpty() && surOuverture) {
    surOuverture();
    return entree;
  }
  return QObject::eventFilter(objet, evenement);
}

}  // namespace gastrelle
