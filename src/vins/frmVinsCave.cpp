#include "vins/frmVinsCave.h"

#include <algorithm>

#include "controles/FeuilleTexte.h"
#include "data/Limites.h"
#include "data/ProceduresFichiers.h"
#include "vins/frmVinsBouteilles.h"
#include "vins/frmVinsListe.h"

namespace gastrelle {

frmVinsCave::frmVinsCave(const PlaceOnglet& place, frmVinsListe& liste)
    : PageOnglet(place),
      liste_(liste),
      txtVinCave_(new LigneTexte(QStringLiteral("txtVinCave"), sansLimite, this)),
      txtRegionCave_(new LigneTexte(QStringLiteral("txtRegionCave"), sansLimite, this)),
      bouteilles_(new frmVinsBouteilles(module().services.messages, hote(), this)),
      txtNotesCave_(new FeuilleTexte(QStringLiteral("txtNotesCave"), limiteTexte, this)) {
  txtVinCave_->RendLectureSeule();
  txtRegionCave_->RendLectureSeule();
  AjouteACote(QStringLiteral("&Le vin"), txtVinCave_);
  const int rang = AjouteACote(QStringLiteral("Sa &région d'origine"), txtRegionCave_);
  bouteilles_->AligneSur(contenu().itemAtPosition(rang, 0)->sizeHint().width());
  contenu().addWidget(bouteilles_, contenu().rowCount(), 0, 1, -1);
  contenu().setRowStretch(AjouteACote(QStringLiteral("No&tes de cave"), txtNotesCave_), 1);
  boutons().Valide("cmdValideCave", u"Valider la saisie", [this] {
    if (PermetDeQuitter()) {
      Valide();
    }
  });
  boutons().Reinitialise("cmdEffacerCave", [this] {
    if (PermetDeQuitter()) {
      Entre();
    }
  });
  boutons().Aide("cmdAideCave");
}

bool frmVinsCave::PermetDeQuitter() {
  return bouteilles_->PermetDeQuitter();
}

void frmVinsCave::Entre() {
  const std::int32_t numero = liste_.ComboVins->currentData().toInt();
  txtVinCave_->PoseTexte(liste_.ComboVins->Texte());
  txtRegionCave_->PoseTexte(liste_.txtRegion->Texte());
  bouteilles_->Montre(BouteillesCourantes(module()), numero);
  ReprendTexte(*txtNotesCave_, liste_.notesCave, numero);
  frmVinsBouteilles::DonneClavier(*bouteilles_->boites().front());
}

void frmVinsCave::Valide() {
  Opere(module(), [this] {
    RogneTexte(*txtNotesCave_);
    ExigePourCave(module());
    const std::string notes = txtNotesCave_->Texte();
    const bool changees = notes != liste_.notesCave;
    EcritCave(module(), liste_.ComboVins->NumeroChoisi(), bouteilles_->BouteillesSaisies(),
              changees ? std::optional<std::string_view>(notes) : std::nullopt);
    liste_.notesCave = notes;
    liste_.Montre();
  });
}

Vue frmVinsCave::VueCourante() const {
  VueCaveDuVin vue;
  vue.nom = txtVinCave_->Texte();
  vue.region = txtRegionCave_->Texte();
  std::transform(bouteilles_->boites().begin(), bouteilles_->boites().end(), vue.bouteilles.begin(),
                 [](const LigneTexte* boite) { return boite->Texte(); });
  vue.notes = txtNotesCave_->Texte();
  return vue;
}

}  // namespace gastrelle
