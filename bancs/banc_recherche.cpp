// How long a search for a word that isn't there takes, from the click on its button to the dialog's
// end, over 32,766 recipes with 60 MB and with 1 GiB of texts, against `rg` of the same word in the
// file of these texts, in turns in the same run; how much the memory grows by it; and how long it
// takes to the first hit of a word of the first recipe.

#include <filesystem>
#include <memory>
#include <string>

#include <QLineEdit>
#include <QPushButton>

#include "Commande.h"
#include "GrandeBibliotheque.h"
#include "Lancement.h"
#include "Memoire.h"
#include "Ouverture.h"
#include "Place.h"
#include "Releve.h"
#include "controles/Conversion.h"
#include "data/Texte1252.h"
#include "recettes/frmRecettes.h"
#include "recherche/frmRechercher.h"

namespace gastrelle::bancs {
namespace {

constexpr double cible = 2;
constexpr double cibleMemoire = 8;   // MB
constexpr double ciblePremiere = 1;  // ms
constexpr int toursPremiere = 201;
constexpr std::size_t lgExtrait = 12;

/// A word of a kitchen that none of the texts holds, and one of rarer letters.
constexpr const char* absent = "estragon";
constexpr const char* rare = "kaki";

/// The dialog, its text typed, over a window of the recipes.
class Dialogue {
 public:
  Dialogue(FenetreEnfant& fenetre, const QString& texte)
      : dialogue_(fenetre.module(), fenetre, nullptr) {
    dialogue_.show();
    dialogue_.findChild<QLineEdit*>(QStringLiteral("txtSaisie"))->setText(texte);
    QApplication::processEvents();
  }

  void Cherche() { dialogue_.findChild<QPushButton*>(QStringLiteral("cmdOk"))->click(); }
  [[nodiscard]] bool montre() const { return dialogue_.isVisible(); }

 private:
  frmRechercher dialogue_;
};

struct Releves {
  Releve rg;
  Releve recherche;
  Releve memoire;
};

/// The program over the large book of a library's folder, its window of recipes open.
class Programme {
 public:
  Programme(essai::Bibliotheque& b, const GrandCahier& cahier) : b_(b) {
    EcritGrandCahier(b.dossier.chemin(), cahier);
    disque_ = std::make_unique<SurLeDisque>(b);
    cadre_ = std::make_unique<essai::CadreEssai>(module());
    fenetre_ = OuvreEtPeint<frmRecettes>(module(), *cadre_);
  }

  void Tour(Releves& releves, const std::string& mot) {
    const std::string textes = (b_.dossier.chemin() / Nom(Donnees::GLR3)).string();
    int statut = 0;
    releves.rg.Mesure([&] { statut = Execute({"rg", "-c", "-i", "-a", mot, textes}); });
    Exige(statut == 1, "rg n'a pas cherché, ou il a trouvé");
    Dialogue dialogue(*fenetre_, QString::fromStdString(mot));
    b_.messages.vus.clear();
    const double avant = OublieMaximum();
    releves.recherche.Mesure([&] { dialogue.Cherche(); });
    releves.memoire.Ajoute(Millisecondes(Memoire("VmHWM") - avant));
    Exige(!dialogue.montre() && b_.messages.vus.size() == 1 &&
              b_.messages.vus[0].texte == "Texte non trouvé"_1252,
          "la recherche n'est pas allée au bout");
  }

  Releve PremiereOccurrence(const std::string& mot) {
    Releve releve;
    for (int tour = 0; tour < toursPremiere; ++tour) {
      Dialogue dialogue(*fenetre_, VersQt(mot));
      releve.Mesure([&] { dialogue.Cherche(); });
      Exige(dialogue.montre(), "la recherche n'a rien trouvé");
    }
    return releve;
  }

  [[nodiscard]] Module1& module() { return disque_->module(); }

 private:
  essai::Bibliotheque& b_;
  std::unique_ptr<SurLeDisque> disque_;
  std::unique_ptr<essai::CadreEssai> cadre_;
  std::unique_ptr<frmRecettes> fenetre_;
};

Releves Tours(Programme& programme, const std::string& mot, int tours) {
  Releves chauffe;
  programme.Tour(chauffe, mot);
  Releves releves;
  for (int tour = 0; tour < tours; ++tour) {
    programme.Tour(releves, mot);
  }
  releves.memoire = chauffe.memoire;  // later searches find the memory of the first one
  return releves;
}

Releve Un() {
  Releve un;
  un.Ajoute(Millisecondes(1));
  return un;
}

bool AnnonceRecherche(const std::string& nom, const Releves& releves) {
  return Annonce(nom, releves.recherche, releves.rg, cible);
}

bool MesurePremieres(Programme& programme) {
  RecRecette premiere;
  programme.module().bufRecette.Lit(2, premiere);
  const std::string texte =
      programme.module().textesRecettes.Lit(premiere.posTexte, premiere.lgTexte);
  const std::string titre(Rogne(premiere.nomRecette.brut()));
  const bool titreTenu =
      Annonce("première occurrence, dans un titre",
              programme.PremiereOccurrence(titre.substr(0, lgExtrait)), Un(), ciblePremiere);
  return Annonce("première occurrence, au bout d'un texte",
                 programme.PremiereOccurrence(texte.substr(texte.size() - lgExtrait)), Un(),
                 ciblePremiere) &&
         titreTenu;
}

bool MesureCahier(essai::Bibliotheque& b) {
  constexpr int tours = 21;
  Programme programme(b, {});
  const Releves releves = Tours(programme, absent, tours);
  bool tenu = AnnonceRecherche("recherche d'un mot absent, 60 Mo, contre rg", releves);
  tenu &= AnnonceRecherche("la même, d'un mot aux lettres rares", Tours(programme, rare, tours));
  tenu &= Annonce("mémoire prise par la recherche, en Mo", releves.memoire, Un(), cibleMemoire);
  return MesurePremieres(programme) && tenu;
}

bool MesureEpars(essai::Bibliotheque& b) {
  constexpr int tours = 11;
  Programme programme(b, {.eparses = true});
  AnnoncePart("la même, chaque texte loin du précédent", Tours(programme, absent, tours).recherche);
  return true;
}

bool MesureGrand(essai::Bibliotheque& b) {
  constexpr int tours = 5;
  if (!APlace(b.dossier.chemin(), std::int64_t{nombreRecettes} * parLongTexte,
              "recherche dans 1 Gio de textes")) {
    return true;
  }
  Programme programme(b, {.parTexte = parLongTexte});
  const Releves releves = Tours(programme, absent, tours);
  const bool tenu = AnnonceRecherche("recherche d'un mot absent, 1 Gio, contre rg", releves);
  return Annonce("mémoire prise par la recherche, en Mo", releves.memoire, Un(), cibleMemoire) &&
         tenu;
}

int Mesure(essai::Bibliotheque& b) {
  bool tenu = MesureCahier(b);
  tenu &= MesureEpars(b);
  tenu &= MesureGrand(b);
  return tenu ? 0 : 1;
}

}  // namespace
}  // namespace gastrelle::bancs

int main(int argc, char** argv) {
  return gastrelle::bancs::Lance(argc, argv, gastrelle::bancs::Mesure);
}
