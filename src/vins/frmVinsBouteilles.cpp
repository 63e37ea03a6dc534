#include "vins/frmVinsBouteilles.h"

#include <algorithm>
#include <utility>

#include <QApplication>
#include <QFocusEvent>
#include <QGridLayout>
#include <QScopedValueRollback>
#include <QSpacerItem>

#include "controles/BoitesTexte.h"
#include "controles/Conversion.h"
#include "controles/Focus.h"
#include "controles/Legende.h"

namespace gastrelle {
namespace {

constexpr int chiffresAuPlus = 5;

/// The name of a colour's box, and its caption with the access key.
struct BoiteCouleur {
  const char16_t* nom;
  const char16_t* legende;
};

constexpr std::array<BoiteCouleur, couleursVin.size()> noms{{
    {u"txtSaisieBlanc", u"&Blanc"},
    {u"txtSaisieRouge", u"Ro&uge"},
    {u"txtSaisieRose", u"R&osé"},
    {u"txtSaisieChampagne", u"Cha&mpagne"},
    {u"txtSaisieVDN", u"Vin &doux naturel"},
    {u"txtSaisieJaune", u"&Jaune"},
    {u"txtSaisiePaille", u"&Paille"},
    {u"txtSaisieMousseux", u"Mou&sseux"},
    {u"txtSaisieGris", u"&Gris"},
}};

/// Keeps a column that wide, in pixels, where there is room.
QSpacerItem* Cale(int largeur) {
  return new QSpacerItem(largeur, 0, QSizePolicy::Maximum, QSizePolicy::Minimum);
}

/// True if the keyboard has come back from a box's own menu or from another program: a box that had
/// it goes on with what was selected in it.
bool EstRetour(Qt::FocusReason raison) {
  return raison == Qt::PopupFocusReason || raison == Qt::ActiveWindowFocusReason;
}

/// Eats the press of the mouse that is being dealt with and the menu that would follow it, and
/// nothing later: the box stays, so the control under the pointer isn't pressed.
class ClicPerdu final : public QObject {
 public:
  ClicPerdu() {
    qApp->installEventFilter(this);
    deleteLater();
  }

 protected:
  bool eventFilter(QObject* /*objet*/, QEvent* evenement) override {
    const QEvent::Type genre = evenement->type();
    return genre == QEvent::ContextMenu ||
           (genre == QEvent::MouseButtonPress && !std::exchange(perdu_, true));
  }

 private:
  bool perdu_ = false;
};

}  // namespace

frmVinsBouteilles::frmVinsBouteilles(Messages& messages, const QWidget& fenetre, QWidget* parent)
    : QWidget(parent), messages_(messages), fenetre_(fenetre) {
  Dispose();
}

void frmVinsBouteilles::Dispose() {
  constexpr int parRangee = 3;
  constexpr int colonnesParBoite = 3;  // caption, box, gap
  constexpr int derniereColonne = parRangee * colonnesParBoite - 1;
  auto* grille = new QGridLayout(this);
  grille->setContentsMargins(0, 0, 0, 0);
  int place = 0;
  for (std::size_t i = 0; i < boites_.size(); ++i, ++place) {
    auto* boite = new LigneTexte(QString::fromUtf16(noms[i].nom), chiffresAuPlus, this);
    boite->setAccessibleDescription(QStringLiteral("Nombre de bouteilles"));
    boite->setAlignment(Qt::AlignRight);
    boite->setMaximumWidth(2 * chiffresAuPlus * boite->fontMetrics().averageCharWidth());
    boite->setAcceptDrops(false);  // what falls into a box without the keyboard isn't tested
    boite->installEventFilter(this);
    const int colonne = place % parRangee * colonnesParBoite;
    grille->addWidget(Legende(QString::fromUtf16(noms[i].legende), boite), place / parRangee,
                      colonne);
    grille->addWidget(boite, place / parRangee, colonne + 1);
    boites_[i] = boite;
  }
  for (int colonne = 2; colonne < derniereColonne; colonne += colonnesParBoite) {
    grille->addItem(Cale(2 * fontMetrics().averageCharWidth()), 0, colonne);
  }
  grille->setColumnStretch(derniereColonne, 1);
}

void frmVinsBouteilles::AligneSur(int largeur) {
  static_cast<QGridLayout*>(layout())->addItem(Cale(largeur), 0, 0);
}

void frmVinsBouteilles::DonneClavier(LigneTexte& boite) {
  DonneFocus(&boite);
  if (boite.window()->focusWidget() == &boite) {
    boite.selectAll();
  }
}

void frmVinsBouteilles::Montre(const Bouteilles& bouteilles, std::int32_t numero) {
  for (std::size_t i = 0; i < boites_.size(); ++i) {
    ReprendTexte(*boites_[i], std::to_string(bouteilles[i]), numero);
  }
}

Bouteilles frmVinsBouteilles::BouteillesSaisies() const {
  Bouteilles saisies{};
  std::transform(boites_.begin(), boites_.end(), saisies.begin(),
                 [](const LigneTexte* boite) { return NombreSaisi(boite->Texte()); });
  return saisies;
}

bool frmVinsBouteilles::Accepte(LigneTexte& boite) {
  RogneTexte(boite);
  if (EstVide(boite)) {
    boite.RemplaceTexte("0");
    return true;
  }
  const std::string saisi = boite.Texte();
  const int refus = RefusDuNombre(saisi);
  for (int fois = 0; fois < refus; ++fois) {
    messages_.Informe("Veuillez insérer un nombre entier (de 1 à 32767)"_1252, Icone::aucune,
                      saisi);
  }
  return refus == 0;
}

bool frmVinsBouteilles::Quitte(LigneTexte& boite) {
  // What the keyboard does meanwhile, message and way back, leaves no box.
  const QScopedValueRollback retient(retient_, true);
  const bool acceptee = Accepte(boite);
  if (!acceptee) {
    DonneClavier(boite);
  }
  return acceptee;
}

bool frmVinsBouteilles::PermetDeQuitter() {
  const auto boite = std::find(boites_.begin(), boites_.end(), fenetre_.focusWidget());
  return boite == boites_.end() || Quitte(**boite);
}

bool frmVinsBouteilles::EstQuittee(const LigneTexte& boite) const {
  const QWidget* recoit = QApplication::focusWidget();
  return !retient_ && boite.isVisible() && recoit != nullptr && recoit != &boite &&
         fenetre_.isAncestorOf(recoit);
}

bool frmVinsBouteilles::eventFilter(QObject* objet, QEvent* evenement) {
  auto& boite = static_cast<LigneTexte&>(*objet);
  const QEvent::Type genre = evenement->type();
  if (genre == QEvent::FocusOut) {
    objet->event(evenement);  // the box is done with it before it may get the keyboard back
    const bool parClic = static_cast<QFocusEvent*>(evenement)->reason() == Qt::MouseFocusReason;
    if (EstQuittee(boite) && !Quitte(boite) && parClic) {
      new ClicPerdu;
    }
    return true;
  }
  if (genre == QEvent::FocusIn) {
    const Qt::FocusReason raison = static_cast<QFocusEvent*>(evenement)->reason();
    objet->event(evenement);
    if (!EstRetour(raison)) {
      boite.selectAll();
    }
    choisiParClic_ = raison == Qt::MouseFocusReason;
    return true;
  }
  if (genre == QEvent::MouseButtonRelease && std::exchange(choisiParClic_, false) &&
      !boite.hasSelectedText()) {
    boite.selectAll();  // the press had put the cursor between two digits
  }
  return QWidget::eventFilter(objet, evenement);
}

}  // namespace gastrelle
