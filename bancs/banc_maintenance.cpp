// How long the cleaning of 32,766 recipes with 1 GiB of texts takes, against `cp` of the same four
// files twice: in memory, and on the disk, where the program waits until its copies are on the
// device and `cp` followed by `sync` does the same. And how long emptying and reinitialising the
// recipes take, against copies of the four factory files as the program makes them and the deletion
// of the old files. In turns in the same run.

#include <array>
#include <filesystem>
#include <string>
#include <unistd.h>
#include <utility>
#include <vector>

#include <QPushButton>

#include "Commande.h"
#include "GrandeBibliotheque.h"
#include "Lancement.h"
#include "Ouverture.h"
#include "Place.h"
#include "Releve.h"
#include "data/EspaceMort.h"
#include "maintenance/Nettoyage.h"
#include "maintenance/Remplacement.h"
#include "maintenance/frmProprietes.h"
#include "plateforme/Disque.h"

namespace gastrelle::bancs {
namespace {

namespace fs = std::filesystem;

constexpr double cibleNettoyage = 2;
constexpr double cibleRemplacement = 1.3;
constexpr GrandCahier cahier{.parTexte = parLongTexte, .mortesParCent = 3};

void Reussie(int statut) {
  Exige(statut == 0, "une commande a échoué");
}

/// The four recipe files, copied twice by the system's own command.
class DeuxCopies {
 public:
  explicit DeuxCopies(fs::path dossier) : dossier_(std::move(dossier)) {
    Efface();
    for (const fs::path& vers : vers_) {
      fs::create_directory(dossier_ / vers);
    }
  }
  DeuxCopies(const DeuxCopies&) = delete;
  DeuxCopies& operator=(const DeuxCopies&) = delete;
  ~DeuxCopies() { Efface(); }

  void Copie() {
    for (const fs::path& vers : vers_) {
      std::vector<std::string> commande{"cp"};
      for (const Donnees fichier : fichiersRecettes) {
        commande.push_back((dossier_ / Nom(fichier)).string());
      }
      commande.push_back((dossier_ / vers).string());
      Reussie(Execute(commande));
    }
  }
  /// Brings them to the device.
  void Synchronise() {
    for (const fs::path& vers : vers_) {
      std::vector<std::string> commande{"sync"};
      for (const Donnees fichier : fichiersRecettes) {
        commande.push_back((dossier_ / vers / Nom(fichier)).string());
      }
      Reussie(Execute(commande));
    }
  }

 private:
  void Efface() {
    for (const fs::path& vers : vers_) {
      fs::remove_all(dossier_ / vers);
    }
  }

  fs::path dossier_;
  std::array<fs::path, 2> vers_{"copie1", "copie2"};
};

struct Releves {
  Releve cp;
  Releve cpSynchronises;
  Releve nettoyage;
};

void Nettoie(Releve& releve, essai::Bibliotheque& b) {
  SurLeDisque programme(b);
  const Encombrement avant = MesureRecettes(programme.module());
  Exige(avant.gain() > 0, "il n'y a rien à nettoyer");
  releve.Mesure([&] { static_cast<void>(NettoieRecettes(programme.module())); });
  const Encombrement apres = MesureRecettes(programme.module());
  Exige(apres.gain() == 0 && apres.taille == avant.necessaire, "le nettoyage n'est pas fait");
}

void NettoieParLeDialogue(Releve& releve, essai::Bibliotheque& b) {
  SurLeDisque programme(b);
  essai::CadreEssai cadre(programme.module());
  FrmProprietes dialogue(programme.module(), cadre, nullptr);
  dialogue.show();
  QApplication::processEvents();
  auto* bouton = dialogue.findChild<QPushButton*>(QStringLiteral("cmdNettoyer"));
  releve.Mesure([&] { bouton->click(); });
  Exige(!dialogue.isVisible() && MesureRecettes(programme.module()).gain() == 0,
        "le nettoyage n'est pas fait");
}

/// What is on its way to the device gets there, so that nobody else waits for it.
void Prepare(essai::Bibliotheque& b) {
  EcritGrandCahier(b.dossier.chemin(), cahier);
  ::sync();
}

void TourNettoyage(Releves& releves, essai::Bibliotheque& b) {
  Prepare(b);
  {
    DeuxCopies copies(b.dossier.chemin());
    releves.cp.Mesure([&] { copies.Copie(); });
  }
  {
    DeuxCopies copies(b.dossier.chemin());
    releves.cpSynchronises.Mesure([&] {
      copies.Copie();
      copies.Synchronise();
    });
  }
  Nettoie(releves.nettoyage, b);
}

constexpr std::int64_t placeNettoyage = std::int64_t{3} << 30;

/// Cleans again and again in a folder of `ici`, then has `suite` tell the times; nothing is done
/// where there is no room.
template <class Suite>
bool MesureNettoyage(const fs::path& ici, const char* titre, int tours, Suite&& suite) {
  if (!APlace(ici, placeNettoyage, titre)) {
    return true;
  }
  PoseDossierTemporaire(ici);
  essai::Bibliotheque b;
  Releves releves;
  for (int tour = 0; tour < tours; ++tour) {
    TourNettoyage(releves, b);
  }
  return suite(releves, b);
}

/// In memory, where bringing to the device costs nothing.
bool MesureNettoyageEnMemoire() {
  constexpr int tours = 5;
  return MesureNettoyage("/dev/shm", "nettoyage de 1 Gio de textes", tours,
                         [](const Releves& releves, essai::Bibliotheque& b) {
                           const bool tenu =
                               Annonce("nettoyage de 32 766 recettes, 1 Gio, contre 2 cp",
                                       releves.nettoyage, releves.cp, cibleNettoyage);
                           Releve dialogue;
                           Prepare(b);
                           NettoieParLeDialogue(dialogue, b);
                           AnnoncePart("le même, par le dialogue", dialogue);
                           return tenu;
                         });
}

bool MesureNettoyageSurDisque() {
  constexpr int tours = 3;
  return MesureNettoyage("/var/tmp", "nettoyage de 1 Gio de textes sur le disque", tours,
                         [](const Releves& releves, essai::Bibliotheque& /*b*/) {
                           const bool tenu =
                               Annonce("le même sur le disque, contre 2 cp et 2 sync",
                                       releves.nettoyage, releves.cpSynchronises, cibleNettoyage);
                           AnnoncePart("2 cp sur le disque, sans sync", releves.cp);
                           return tenu;
                         });
}

struct RelevesRemplacement {
  Releve copies;
  Releve copiesEtSuppression;
  Releve vidage;
  Releve reinitialisation;
};

/// A library as it is before each of the measured actions, everything on the device.
void Garnit(essai::Bibliotheque& b, bool grande) {
  if (grande) {
    EcritGrandCahier(b.dossier.chemin(), {});
  } else {
    for (const Donnees fichier : fichiersRecettes) {
      fs::copy_file(b.dossier.chemin() / NomFabrique(fichier), b.dossier.chemin() / Nom(fichier),
                    fs::copy_options::overwrite_existing);
    }
  }
  ::sync();
}

/// The copies of the factory files as the program makes them; then the deletion of the old ones.
void TourCopies(RelevesRemplacement& releves, essai::Bibliotheque& b, bool grande) {
  const fs::path dossier = b.dossier.chemin() / "copie";
  fs::create_directory(dossier);
  Garnit(b, grande);
  {
    Disque disque(b.dossier.chemin());
    const auto copie = [&] {
      for (const Donnees fichier : fichiersRecettes) {
        disque.Copie(NomFabrique(fichier), "copie/" + Nom(fichier));
      }
    };
    releves.copiesEtSuppression.Mesure([&] {
      releves.copies.Mesure(copie);
      for (const Donnees fichier : fichiersRecettes) {
        disque.Supprime(Nom(fichier));
      }
    });
  }
  fs::remove_all(dossier);
}

void TourRemplacement(Releve& releve, essai::Bibliotheque& b, bool grande,
                      FabriqueRecettes fabrique) {
  Garnit(b, grande);
  SurLeDisque programme(b);
  releve.Mesure([&] { RemplaceRecettes(programme.module(), fabrique); });
}

bool MesureRemplacements(const std::string& de, bool grande) {
  constexpr int tours = 21;
  PoseDossierTemporaire("/var/tmp");
  essai::Bibliotheque b;
  b.GarnitDeFabrique(DOSSIER_PROGRAMME);
  RelevesRemplacement releves;
  for (int tour = 0; tour < tours; ++tour) {
    TourCopies(releves, b, grande);
    TourRemplacement(releves.vidage, b, grande, FabriqueUneRecette);
    TourCopies(releves, b, grande);
    TourRemplacement(releves.reinitialisation, b, grande, FabriqueOrigines);
  }
  const bool tenu = Annonce("vidage " + de + ", contre copie et suppression", releves.vidage,
                            releves.copiesEtSuppression, cibleRemplacement);
  const bool aussi = Annonce("réinitialisation " + de, releves.reinitialisation,
                             releves.copiesEtSuppression, cibleRemplacement);
  AnnoncePart("la copie seule", releves.copies);
  return tenu && aussi;
}

int Mesure(essai::Bibliotheque& /*b*/) {
  bool tenu = MesureNettoyageEnMemoire();
  tenu &= MesureNettoyageSurDisque();
  tenu &= MesureRemplacements("de 0,3 Mo", false);
  tenu &= MesureRemplacements("de 60 Mo", true);
  return tenu ? 0 : 1;
}

}  // namespace
}  // namespace gastrelle::bancs

int main(int argc, char** argv) {
  return gastrelle::bancs::Lance(argc, argv, gastrelle::bancs::Mesure);
}
