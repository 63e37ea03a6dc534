#include "vins/frmMillesime.h"

#include <array>

#include "data/Texte1252.h"
#include "vins/CatalogueMillesimes.h"
#include "vins/frmMillesimeAjouter.h"
#include "vins/frmMillesimeListe.h"
#include "vins/frmMillesimeModifier.h"

namespace gastrelle {
namespace {

constexpr int ongletAjouter = 2;

constexpr std::array<DescriptionOnglet, 3> onglets{{
    {u"Liste", u"Les millésimes mémorisés", u"Liste des millésimes mémorisés",
     u"Bonne dégustation !", "millesimes-liste", CreePage<frmMillesime, frmMillesimeListe>},
    {u"Ajouter", u"Ajouter un millésime", u"Ajout d'un millésime",
     u"Vous ajoutez un millésime à la base de données", "millesimes-ajouter",
     CreePage<frmMillesime, frmMillesimeAjouter>},
    {u"Modifier", u"Modifier un millésime", u"Modification d'un millésime",
     u"Vous modifiez le millésime sélectionné", "millesimes-modifier",
     CreePage<frmMillesime, frmMillesimeModifier>},
}};

constexpr DescriptionFenetre fenetre{.nom = "frmMillesime",
                                     .titre = u"Les millésimes des vins",
                                     .vue = EntreeVue::millesimes,
                                     .logo = "logo-millesimes",
                                     .razReduite = true};
constexpr JeuOnglets jeu{.onglets = onglets, .refus = {}};

}  // namespace

frmMillesime::frmMillesime(Module1& module, Cadre& cadre)
    : FenetreOnglets(module, cadre, fenetre, jeu) {
  liste().Charge();
}

frmMillesimeListe& frmMillesime::liste() {
  return static_cast<frmMillesimeListe&>(Page(ongletListe));
}

std::string frmMillesime::Annonce() {
  std::string annonce = std::to_string(NombreAnnees(module()));
  annonce += CRLF;
  annonce += "millésimes"_1252;
  return annonce;
}

bool frmMillesime::AnneeOfferteEstEntamee() {
  const auto enCours = static_cast<int>(module().services.horloge.Aujourdhui().year());
  return Annee(liste().MSFlexGrid2->NombreRangees()) >= enCours;
}

bool frmMillesime::PermetOnglet(int vers) {
  if (vers != ongletAjouter || !AnneeOfferteEstEntamee()) {
    return FenetreOnglets::PermetOnglet(vers);
  }
  module().services.pointeur.Normal();
  module().services.messages.Informe(
      "On ne peut ajouter une année au delà\r\nde celle de l'année système en cours."_1252,
      Icone::critique);
  ChoisitOnglet(ongletListe);
  return false;
}

}  // namespace gastrelle
