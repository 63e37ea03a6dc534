#include "listes/frmCourses.h"

#include <algorithm>
#include <utility>

#include <QScrollBar>

#include "controles/BoitesTexte.h"
#include "controles/Focus.h"
#include "controles/PageUnique.h"
#include "controles/ParcoursListe.h"
#include "listes/Rayons.h"
#include "plateforme/ErreurExecution.h"

namespace gastrelle {
namespace {

constexpr DescriptionFenetre fenetre{.nom = "frmCourses",
                                     .titre = u"Mes courses",
                                     .vue = EntreeVue::mesCourses,
                                     .logo = "logo-courses"};

/// The fifteen aisles; none is wider than it has to be to be read.
ListeChoix* ListeRayons(QWidget* parent) {
  auto* liste = new ListeChoix(QStringLiteral("lstRayons"), Ordre::insertion, parent);
  Liste rayons;
  for (const std::string_view nom : nomsRayons) {
    rayons.push_back({std::string(nom), static_cast<std::int32_t>(rayons.size())});
  }
  liste->Ajoute(std::move(rayons));
  liste->setToolTip(QStringLiteral("Choisir un rayon dans la liste"));
  liste->setMaximumWidth(liste->LargeurUtile() + 2 * liste->frameWidth() +
                         liste->verticalScrollBar()->sizeHint().width());
  return liste;
}

}  // namespace

frmCourses::frmCourses(Module1& module, Cadre& cadre) : FenetreEnfant(module, cadre, fenetre) {
  auto* page = new PageUnique(*this, u"La liste de mes courses par rayon", "courses");
  lstRayons_ = ListeRayons(page);
  txtDetail_ = new FeuilleTexte(QStringLiteral("txtDetail"), sansLimite, page);
  txtDetail_->setToolTip(
      QStringLiteral("Tapez ici les achats à effectuer dans le rayon ci-contre"));
  page->AjouteColonne(0, QStringLiteral("Les &rayons"), lstRayons_);
  page->AjouteColonne(1, QStringLiteral("Achats à effec&tuer au rayon ci-contre"), txtDetail_);
  cmdNouveau_ = page->boutons().Ajoute("cmdNouveau", u"Tout effa&cer", "effacer",
                                       u"Effacer toutes les saisies", [this] { EffaceTout(); });
  page->boutons().Aide("cmdAide");
  cmdNouveau_->setVisible(!SontVides());
  ParcourtAuClavier(*page, *lstRayons_);
  lstRayons_->surChoix = [this] { ChoisitRayon(); };
  lstRayons_->surDoubleClic = [this] { DonneFocus(txtDetail_); };
  connect(txtDetail_, &QPlainTextEdit::textChanged, cmdNouveau_, &QWidget::show);
  DonneFocus(lstRayons_);
  ignoreClic_ = true;
  module.rayonCourant = 0;
  lstRayons_->Choisit(0);
}

std::string& frmCourses::TexteCourant() const {
  return module().texteRayon[static_cast<std::size_t>(module().rayonCourant)];
}

bool frmCourses::SontVides() const {
  const auto& textes = module().texteRayon;
  return std::all_of(textes.begin(), textes.end(),
                     [](const std::string& texte) { return texte.empty(); });
}

Vue frmCourses::VueCourante() const {
  VueCourses vue;
  for (std::size_t i = 0; i < nombreRayons; ++i) {
    const bool courant =
        txtDetail_->isEnabled() && static_cast<std::size_t>(module().rayonCourant) == i;
    const std::string texte = courant ? txtDetail_->Texte() : module().texteRayon[i];
    if (!texte.empty()) {
      vue.rayons.push_back({std::string(nomsRayons[i]), texte});
    }
  }
  return vue;
}

void frmCourses::RangeTexte() {
  const std::string texte = txtDetail_->Texte();
  if (texte != Rogne(texte)) {  // the cursor stays where nothing has to go
    const int coupes = static_cast<int>(std::min(texte.find_first_not_of(' '), texte.size()));
    const int place = std::max(0, txtDetail_->textCursor().position() - coupes);
    RogneTexte(*txtDetail_);
    QTextCursor curseur(txtDetail_->document());
    curseur.setPosition(std::min(place, txtDetail_->document()->characterCount() - 1));
    txtDetail_->setTextCursor(curseur);
  }
  EnregistreSaisie();
}

void frmCourses::EnregistreSaisie() {
  if (txtDetail_->isEnabled()) {
    TexteCourant() = Rogne(txtDetail_->Texte());
  }
}

void frmCourses::ChoisitRayon() {
  if (!std::exchange(ignoreClic_, false)) {
    RangeTexte();
    module().rayonCourant = static_cast<std::int16_t>(lstRayons_->indice());
  }
  AfficheRayon();
}

void frmCourses::AfficheRayon() {
  txtDetail_->setEnabled(true);
  try {
    if (const std::string& texte = TexteCourant(); texte != txtDetail_->Texte()) {
      txtDetail_->PoseTexte(texte);
    }
  } catch (const ErreurExecution& erreur) {
    // What can't be shown isn't put away either: the aisle keeps its text.
    txtDetail_->PoseTexte({});
    txtDetail_->setEnabled(false);
    module().services.messages.Informe(erreur.what(), Icone::aucune);
  }
  // What was typed for one aisle never comes back in another.
  txtDetail_->document()->clearUndoRedoStacks();
  txtDetail_->moveCursor(QTextCursor::End);
}

void frmCourses::EffaceTout() {
  EnregistreSaisie();
  if (SontVides() ||
      module().services.messages.Demande("Voulez-vous vraiment effacer toutes vos courses ?",
                                         Choix::ouiNonAnnuler) != Reponse::oui) {
    return;
  }
  module().texteRayon.fill({});
  txtDetail_->setEnabled(true);
  txtDetail_->PoseTexte({});
  DonneFocus(lstRayons_);  // the button in focus is going
  cmdNouveau_->hide();
  module().rayonCourant = 0;
  lstRayons_->Choisit(0);
}

}  // namespace gastrelle
