#include "vins/frmMillesimeClassement.h"

#include <algorithm>
#include <iterator>

#include <QGridLayout>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QRadioButton>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <QToolTip>

#include "controles/Conversion.h"
#include "controles/Etiquette.h"
#include "controles/Focus.h"
#include "controles/Teintes.h"
#include "controles/Touches.h"

namespace gastrelle {
namespace {

constexpr int optionsParCru = static_cast<int>(degres.size());

/// The buttons stand from the first grade of the scale up, "Non classé" at their end.
constexpr int Option(std::int16_t degre) {
  return degre == nonClasse ? optionsParCru - 1 : degre - 1;
}
constexpr std::int16_t DegreDe(int option) {
  return option == optionsParCru - 1 ? nonClasse : static_cast<std::int16_t>(option + 1);
}

/// "Option" and the name of the area's field, with a capital.
QString NomOptions(std::size_t cru) {
  constexpr auto noms = std::apply([](const auto&... champ) { return std::array{champ.nom...}; },
                                   champs<RecMillesime>);
  QString nom = VersQt(noms[cru]);
  nom[0] = nom[0].toUpper();
  return QStringLiteral("Option") + nom;
}

/// An option button in the middle of its cell, which takes clicks everywhere.
class OptionDegre final : public QRadioButton {
 public:
  explicit OptionDegre(QWidget* parent) : QRadioButton(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  }

  [[nodiscard]] QSize sizeHint() const override {
    constexpr int air = 8;
    return Marque() + QSize(air, air);
  }

 protected:
  [[nodiscard]] bool hitButton(const QPoint& ou) const override { return rect().contains(ou); }

  void paintEvent(QPaintEvent* /*evenement*/) override {
    QStylePainter peintre(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.rect = QStyle::alignedRect(layoutDirection(), Qt::AlignCenter, Marque(), rect());
    if (hasFocus()) {
      QStyleOptionFocusRect cadre;
      cadre.initFrom(this);
      peintre.drawPrimitive(QStyle::PE_FrameFocusRect, cadre);
    }
    peintre.drawPrimitive(QStyle::PE_IndicatorRadioButton, option);
    Cerne(peintre, option.rect);
  }

 private:
  /// A ring that is seen under any palette: an empty button is hardly darker than a dark page.
  void Cerne(QPainter& peintre, const QRect& marque) const {
    constexpr int encre = 55;  // hundredths
    constexpr qreal demiTrait = 0.5;
    peintre.setRenderHint(QPainter::Antialiasing);
    peintre.setPen(
        Melange(palette().color(QPalette::Window), palette().color(QPalette::WindowText), encre));
    peintre.drawEllipse(QRectF(marque).adjusted(demiTrait, demiTrait, -demiTrait, -demiTrait));
  }
  [[nodiscard]] QSize Marque() const {
    return {style()->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth, nullptr, this),
            style()->pixelMetric(QStyle::PM_ExclusiveIndicatorHeight, nullptr, this)};
  }
};

/// A heading over a narrow column: its last word stands on a line of its own, and a word that is
/// too long for the column ends in "…".
class TitreColonne final : public QLabel {
 public:
  TitreColonne(const QString& texte, QWidget* parent) : QLabel(texte, parent) {
    setTextFormat(Qt::PlainText);
  }

  [[nodiscard]] QSize sizeHint() const override {
    constexpr int air = 6;
    return {fontMetrics().size(0, Lignes().join(u'\n')).width() + air,
            2 * fontMetrics().lineSpacing()};
  }
  [[nodiscard]] QSize minimumSizeHint() const override {
    constexpr int lettresAuMoins = 5;
    return {lettresAuMoins * fontMetrics().averageCharWidth(), sizeHint().height()};
  }

 protected:
  void paintEvent(QPaintEvent* /*evenement*/) override {
    QPainter peintre(this);
    style()->drawItemText(&peintre, rect(), Qt::AlignHCenter | Qt::AlignBottom, palette(),
                          isEnabled(), Abregees().join(u'\n'), foregroundRole());
  }
  bool event(QEvent* evenement) override {
    if (evenement->type() != QEvent::ToolTip || Abregees() == Lignes()) {
      return QLabel::event(evenement);
    }
    QToolTip::showText(static_cast<QHelpEvent*>(evenement)->globalPos(), text(), this);
    return true;
  }

 private:
  [[nodiscard]] QStringList Lignes() const { return text().split(u' '); }
  [[nodiscard]] QStringList Abregees() const {
    QStringList lignes = Lignes();
    for (QString& ligne : lignes) {
      ligne = fontMetrics().elidedText(ligne, Qt::ElideRight, width());
    }
    return lignes;
  }
};

}  // namespace

PanneauClassement::PanneauClassement(const NomsClassement& noms, QWidget* parent)
    : QWidget(parent), legende_(new Etiquette(QStringLiteral("Les vigno&bles"), this)) {
  constexpr int ecart = 2;
  constexpr int retrait = 6;  // of the captions, inside the bands of the rows
  auto* cases = new QGridLayout(this);
  cases->setContentsMargins(retrait, 0, 0, 0);
  cases->setHorizontalSpacing(ecart);
  cases->setVerticalSpacing(ecart);
  FaitEntetes(noms);
  for (std::size_t cru = 0; cru < crus.size(); ++cru) {
    FaitCru(cru, noms);
  }
}

void PanneauClassement::FaitEntetes(const NomsClassement& noms) {
  auto* cases = static_cast<QGridLayout*>(layout());
  cases->addWidget(legende_, 0, 0, Qt::AlignBottom);
  for (int option = 0; option < optionsParCru; ++option) {
    const Degre& degre = degres[static_cast<std::size_t>(DegreDe(option))];
    auto* titre = new TitreColonne(VersQt(degre.choix), this);
    titre->setObjectName(QStringLiteral("lblClassement(%1)").arg(noms.premierClassement + option));
    cases->addWidget(titre, 0, option + 1);
  }
}

void PanneauClassement::FaitCru(std::size_t cru, const NomsClassement& noms) {
  auto* cases = static_cast<QGridLayout*>(layout());
  const int numero = static_cast<int>(cru);
  auto* nom = new Etiquette(VersQt(crus[cru].nom), this);
  nom->setObjectName(QStringLiteral("lblCru(%1)").arg(noms.premierCru + numero));
  cases->addWidget(nom, numero + 1, 0);
  auto* groupe = new QButtonGroup(this);
  groupes_[cru] = groupe;
  for (int option = 0; option < optionsParCru; ++option) {
    auto* bouton = new OptionDegre(this);
    bouton->setObjectName(NomOptions(cru) + QLatin1String(noms.suffixe) +
                          QStringLiteral("(%1)").arg(option));
    groupe->addButton(bouton, option);
    cases->addWidget(bouton, numero + 1, option + 1);
  }
  connect(groupe, &QButtonGroup::buttonToggled, this, [this, cru] { RegleEntree(cru); });
  RegleEntree(cru);
}

void PanneauClassement::RegleEntree(std::size_t cru) {
  QAbstractButton* entree = Entree(cru);
  for (QAbstractButton* bouton : groupes_[cru]->buttons()) {
    bouton->setFocusPolicy(bouton == entree ? Qt::StrongFocus : Qt::ClickFocus);
  }
  if (cru == 0) {
    legende_->setBuddy(entree);
  }
}

QAbstractButton* PanneauClassement::Entree(std::size_t cru) const {
  QAbstractButton* choisie = groupes_[cru]->checkedButton();
  return choisie != nullptr ? choisie : groupes_[cru]->button(0);
}

void PanneauClassement::NommeAnnee(int annee) {
  for (std::size_t cru = 0; cru < crus.size(); ++cru) {
    for (int option = 0; option < optionsParCru; ++option) {
      const Degre& degre = degres[static_cast<std::size_t>(DegreDe(option))];
      groupes_[cru]->button(option)->setAccessibleName(
          QStringLiteral("%1 : %2, %3").arg(VersQt(crus[cru].nom), VersQt(degre.choix)).arg(annee));
    }
  }
}

void PanneauClassement::Pose(const Classement& classement) {
  for (std::size_t cru = 0; cru < crus.size(); ++cru) {
    QButtonGroup& groupe = *groupes_[cru];
    if (EstUnDegre(classement[cru])) {
      groupe.button(Option(classement[cru]))->setChecked(true);
    } else if (QAbstractButton* choisie = groupe.checkedButton()) {
      groupe.setExclusive(false);
      choisie->setChecked(false);
      groupe.setExclusive(true);
    }
  }
}

Classement PanneauClassement::Choix(const Classement& sinon) const {
  Classement choix = sinon;
  for (std::size_t cru = 0; cru < crus.size(); ++cru) {
    if (const int option = groupes_[cru]->checkedId(); option >= 0) {
      choix[cru] = DegreDe(option);
    }
  }
  return choix;
}

void PanneauClassement::PrendFocus() {
  DonneFocus(Entree(0));
}

void PanneauClassement::keyPressEvent(QKeyEvent* touche) {
  const int pas = touche->key() == Qt::Key_Down ? 1 : touche->key() == Qt::Key_Up ? -1 : 0;
  const auto* bouton = qobject_cast<QAbstractButton*>(focusWidget());
  if (pas == 0 || bouton == nullptr || !EstTouchePlaine(*touche)) {
    QWidget::keyPressEvent(touche);
    return;
  }
  const auto ici = std::find(groupes_.begin(), groupes_.end(), bouton->group());
  const auto vers = std::distance(groupes_.begin(), ici) + pas;
  if (vers < 0 || vers >= std::ssize(groupes_)) {
    QWidget::keyPressEvent(touche);
    return;
  }
  Entree(static_cast<std::size_t>(vers))
      ->setFocus(pas > 0 ? Qt::TabFocusReason : Qt::BacktabFocusReason);
}

void PanneauClassement::paintEvent(QPaintEvent* /*evenement*/) {
  constexpr int teinte = 6;  // hundredths of ink: the eye keeps to its row
  const auto* cases = static_cast<const QGridLayout*>(layout());
  QPainter peintre(this);
  const QColor bande =
      Melange(palette().color(QPalette::Window), palette().color(QPalette::WindowText), teinte);
  for (int rang = 1; rang <= static_cast<int>(crus.size()); rang += 2) {
    const QRect place = cases->cellRect(rang, 0);
    peintre.fillRect(0, place.top(), width(), place.height(), bande);
  }
}

}  // namespace gastrelle
