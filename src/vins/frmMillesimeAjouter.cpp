#include "vins/frmMillesimeAjouter.h"

#include "data/ProceduresFichiers.h"
#include "vins/frmMillesimeListe.h"

namespace gastrelle {
namespace {

constexpr Classement rienDeClasse{};
constexpr NomsClassement noms{.suffixe = "", .premierCru = 0, .premierClassement = 0};

}  // namespace

frmMillesimeAjouter::frmMillesimeAjouter(const PlaceOnglet& place, frmMillesimeListe& liste)
    : frmMillesimeSaisie(place, "lblMillesime", noms), liste_(liste) {
  boutons().Valide("cmdValideAjouter", u"Valider les classements", [this] { Valide(); });
  boutons().Aide("cmdAideAjouter");
}

void frmMillesimeAjouter::Entre() {
  MontreAnnee(Annee(liste_.MSFlexGrid2->NombreRangees()));
  classement().Pose(rienDeClasse);
  classement().PrendFocus();
}

void frmMillesimeAjouter::Valide() {
  Opere(module(), [&] { AjouteAnnee(module(), classement().Choix(rienDeClasse)); });
  hote().ChoisitOnglet(ongletListe);
  // The choice shows the area already; it is shown once more all the same.
  liste_.ComboCru->Choisit(0);
  liste_.AfficheCru();
  liste_.MSFlexGrid2->Selectionne(liste_.MSFlexGrid2->NombreRangees() - 1);
}

}  // namespace gastrelle
