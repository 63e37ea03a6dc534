#include "listes/frmMesNotes.h"

#include "controles/Focus.h"
#include "controles/PageUnique.h"
#include "data/Limites.h"
#include "data/Messages.h"
#include "data/Texte1252.h"
#include "listes/Notes.h"
#include "plateforme/ErreurExecution.h"

namespace gastrelle {
namespace {

constexpr DescriptionFenetre fenetre{.nom = "frmMesNotes",
                                     .titre = u"Mes notes",
                                     .vue = EntreeVue::mesNotes,
                                     .logo = "logo-notes",
                                     .seCache = true};

}  // namespace

frmMesNotes::frmMesNotes(Module1& module, Cadre& cadre) : FenetreEnfant(module, cadre, fenetre) {
  auto* page = new PageUnique(*this, u"Mes notes en vrac", "notes");
  txtSaisie_ = new FeuilleTexte(QStringLiteral("txtSaisie"), limiteTexte, page);
  page->AjouteColonne(0, QStringLiteral("Le &texte"), txtSaisie_);
  page->boutons().Aide("cmdAide");
  DonneFocus(txtSaisie_);
  cadre.Coche(fenetre.vue);
  ChargeNotes();
}

void frmMesNotes::ChargeNotes() {
  try {
    txtSaisie_->PoseTexte(LitNotes(module()));
  } catch (const ErreurExecution& erreur) {
    module().services.pointeur.Normal();
    module().services.messages.Informe(erreur.what(), Icone::aucune);
  }
}

Vue frmMesNotes::VueCourante() const {
  return VueNotes{txtSaisie_->Texte()};
}

void frmMesNotes::EnregistreSaisie() {
  if (!module().erreurFatale) {
    EcritNotes(module(), Rogne(txtSaisie_->Texte()));
  }
}

}  // namespace gastrelle
