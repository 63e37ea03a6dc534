#include "vins/frmMillesimeModifier.h"

#include "data/ProceduresFichiers.h"
#include "vins/frmMillesimeListe.h"

namespace gastrelle {
namespace {

constexpr NomsClassement noms{.suffixe = "Modifier",
                              .premierCru = static_cast<int>(crus.size()),
                              .premierClassement = static_cast<int>(degres.size())};

}  // namespace

frmMillesimeModifier::frmMillesimeModifier(const PlaceOnglet& place, frmMillesimeListe& liste)
    : frmMillesimeSaisie(place, "lblMillesimeModifier", noms), liste_(liste) {
  boutons().Valide("cmdValideModifier", u"Valider les classements", [this] { Valide(); });
  boutons().Reinitialise("cmdEffacerModifier", [this] { AfficheClassement(); });
  boutons().Aide("cmdAideModifier");
}

void frmMillesimeModifier::Entre() {
  MontreAnnee(Annee(liste_.anneeCourante));
  Garde(module(), [&] {
    static_cast<void>(LitAnnee(module(), liste_.anneeCourante));
    AfficheClassement();
  });
  classement().PrendFocus();
}

void frmMillesimeModifier::AfficheClassement() {
  classement().Pose(AnneeLue(module()));
}

void frmMillesimeModifier::Valide() {
  // The list is built anew below, which chooses another year.
  const std::int32_t annee = liste_.anneeCourante;
  Opere(module(), [&] { ChangeAnnee(module(), annee, classement().Choix(AnneeLue(module()))); });
  hote().ChoisitOnglet(ongletListe);
  liste_.AfficheCru();
  liste_.MSFlexGrid2->Selectionne(annee);
}

}  // namespace gastrelle
