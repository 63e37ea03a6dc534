// The laying of a user's own folder: whole or not at all, whatever fails and whoever else is there.

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "accidents/Accident.h"
#include "data/Chantier.h"
#include "data/DossierPersonnel.h"
#include "doublures/DisqueEssai.h"
#include "doublures/FabriqueInstallee.h"
#include "doublures/Pannes.h"
#include "plateforme/Disque.h"

namespace gastrelle::essai {
namespace {

namespace fs = std::filesystem;
using testing::IsEmpty;

/// Where a factory lies, and the place in which a user's folder is laid.
class Pose : public testing::Test {
 protected:
  Pose() { PoseFabrique(usine.chemin(), "1.0.0"); }

  std::unique_ptr<Instance> Tente() { return PoseDossierPersonnel(modeles, place, "gastrelle"); }

  /// The place holds the whole folder, and else nothing but `voisins`.
  void AttendEntier(Contenu voisins = {}) {
    voisins["gastrelle"] = "/";
    for (const auto& [nom, octets] : ContenuDe(usine.chemin())) {
      voisins["gastrelle/" + nom] = octets;
    }
    EXPECT_EQ(ContenuDe(chezLui.chemin()), voisins);
  }

  DossierEssai usine;
  DossierEssai chezLui;
  DisqueEssai modeles{usine.chemin()};
  DisqueEssai place{chezLui.chemin()};
};

TEST_F(Pose, DonneToutCeQueLaFabriqueApporte) {
  EXPECT_NE(Tente(), nullptr);
  AttendEntier();
}

TEST_F(Pose, TientLeVerrouDuDossierPose) {
  const auto verrou = Tente();
  EXPECT_EQ(Instance::Prend(chezLui.chemin() / "gastrelle"), nullptr);
}

TEST_F(Pose, DonneLeNomQuandToutEstSurLeDisque) {
  std::size_t synchronises = 0;
  std::size_t crees = 0;
  place.pendant = [&](const std::string& ligne) {
    synchronises += ligne.starts_with("synchronise ") ? 1 : 0;
    crees += ligne.starts_with("crée ") ? 1 : 0;
    if (ligne == "renomme gastrelle~ gastrelle") {
      EXPECT_EQ(synchronises, crees);  // every file, and the names of the two folders
    }
  };
  static_cast<void>(Tente());
  EXPECT_EQ(crees, 19U + 4U + 1U + 2U + 2U);
  EXPECT_EQ(synchronises, crees + 1);
}

TEST_F(Pose, NeLaisseRienQuandUnAppelEchoue) {
  for (DisqueEssai* disque : {&modeles, &place}) {
    for (const Maniere maniere : {Maniere::rienFait, Maniere::moitieEcrite}) {
      std::size_t n = 1;
      for (bool pose = false; !pose; ++n) {
        SCOPED_TRACE(n);
        disque->EchoueALAppel(n, Panne::disquePlein, maniere);
        pose = Reussit([&] { static_cast<void>(Tente()); });
        disque->Guerit();
        if (!pose) {
          ASSERT_THAT(ContenuDe(chezLui.chemin()), IsEmpty());
        }
      }
      EXPECT_GT(n, 50U);
      AttendEntier();
      fs::remove_all(chezLui.chemin() / "gastrelle");
    }
  }
}

TEST_F(Pose, NeLaisseRienSurUnDisqueQuiRestePlein) {
  place.EchoueSur("écrit ", Panne::disquePlein);
  EXPECT_EQ(PanneDe([&] { static_cast<void>(Tente()); }), Panne::disquePlein);
  EXPECT_THAT(ContenuDe(chezLui.chemin()), IsEmpty());
}

TEST_F(Pose, CoupeeNImporteOuReprendEntiereAuDepartSuivant) {
  static_cast<void>(Tente());
  const std::vector<Coup> coups = CoupsDe(place.journal());
  ASSERT_GT(coups.size(), 100U);
  for (const Coup& coup : coups) {
    SCOPED_TRACE(coup.ligne);
    fs::remove_all(chezLui.chemin() / "gastrelle");
    Tue(place, coup, [&] { static_cast<void>(Tente()); });
    if (!fs::exists(chezLui.chemin() / "gastrelle")) {
      static_cast<void>(Tente());
    }
    AttendEntier();
  }
}

TEST_F(Pose, LaSecondeAArriverLaisseLeDossierDeLaPremiere) {
  DisqueEssai autrePlace{chezLui.chemin()};
  std::unique_ptr<Instance> premier;
  place.pendant = [&](const std::string& ligne) {
    if (ligne == "renomme gastrelle~ gastrelle") {
      premier = PoseDossierPersonnel(modeles, autrePlace, "gastrelle");
    }
  };
  EXPECT_THROW(static_cast<void>(Tente()), ErreurExecution);
  EXPECT_NE(premier, nullptr);
  AttendEntier();
}

TEST_F(Pose, SePasseDUnResteQuiNeVeutPasPartir) {
  fs::create_directory(chezLui.chemin() / "gastrelle~");
  chezLui.Ecrit("gastrelle~/GLR1.stp", "un reste");
  place.EchoueSur("enlève gastrelle~", Panne::permissionRefusee);
  EXPECT_NE(Tente(), nullptr);
  AttendEntier({{"gastrelle~", "/"}});
  EXPECT_EQ(std::count(place.journal().begin(), place.journal().end(), "crée gastrelle~"), 1);
}

/// Somebody else's name is free again before it can be looked at.
TEST_F(Pose, SePasseDUnNomQuiVientDEtreLibere) {
  place.EchoueALAppel(1, Panne::accesFichier);
  EXPECT_NE(Tente(), nullptr);
  AttendEntier();
}

/// Again and again, so that every one is overtaken wherever it may stand between the name and the
/// lock.
TEST_F(Pose, DeDepartsSimultanesTravailleDansUnDossierParDepart) {
  constexpr std::size_t departs = 4;
  constexpr int tours = 1000;
  std::atomic<int> pannes = 0;
  const auto travaille = [&] {
    Disque lesModeles(usine.chemin());
    Disque laPlace(chezLui.chemin());
    for (int tour = 0; tour < tours; ++tour) {
      const bool seul = Reussit([&] {
        Chantier chantier(laPlace, "gastrelle", {"EDITION"});
        chantier.Copie(lesModeles, "EDITION");
        laPlace.Renomme(chantier.De("EDITION"), chantier.De("IMAGE/EDITION"));
      });
      pannes += seul ? 0 : 1;
    }
  };
  std::vector<std::thread> fils;
  for (std::size_t i = 0; i < departs; ++i) {
    fils.emplace_back(travaille);
  }
  for (std::thread& fil : fils) {
    fil.join();
  }
  EXPECT_EQ(pannes, 0);
  EXPECT_THAT(ContenuDe(chezLui.chemin()), IsEmpty());
}

TEST_F(Pose, NeToucheNiAUnDossierNiAUnFichierDAutrui) {
  const DossierEssai ailleurs;
  ailleurs.Ecrit("GLR1.stp", "à moi");
  const std::vector<std::function<void(const fs::path&)>> autrui{
      [](const fs::path& chemin) {
        fs::create_directory(chemin);
        std::ofstream(chemin / "GLR1.stp") << "à moi";
        std::ofstream(chemin / "GLR1.DAT") << "à moi";
      },
      [](const fs::path& chemin) {
        fs::create_directories(chemin / "IMAGE");
        std::ofstream(chemin / "IMAGE" / "moi.jpg") << "à moi";
      },
      [](const fs::path& chemin) {
        fs::create_directories(chemin / "IMAGE");
        fs::create_directory(chemin / "lettres");
        std::ofstream(chemin / "GLR1.stp") << "à moi";
      },
      [](const fs::path& chemin) {
        fs::create_directories(chemin / "IMAGE" / "agneau.jpg");
        std::ofstream(chemin / "GLR1.stp") << "à moi";
      },
      [](const fs::path& chemin) {
        fs::create_directories(chemin / "GLR2.stp");
        std::ofstream(chemin / "GLR1.stp") << "à moi";
      },
      [&](const fs::path& chemin) {
        fs::create_directory(chemin);
        fs::create_symlink(ailleurs.chemin() / "GLR1.stp", chemin / "GLR1.stp");
      },
      [&](const fs::path& chemin) { fs::create_directory_symlink(ailleurs.chemin(), chemin); },
      [](const fs::path& chemin) { fs::create_symlink("/nulle/part", chemin); },
      [](const fs::path& chemin) { std::ofstream(chemin) << "à moi"; },
  };
  for (const auto& pose : autrui) {
    pose(chezLui.chemin() / "gastrelle~");
    const Contenu avant = ContenuDe(chezLui.chemin());
    static_cast<void>(Tente());
    AttendEntier(avant);
    fs::remove_all(chezLui.chemin() / "gastrelle");
    fs::remove_all(chezLui.chemin() / "gastrelle~");
  }
  EXPECT_EQ(ailleurs.Lit("GLR1.stp"), "à moi");
}

TEST_F(Pose, RemplaceUnDossierVideEtNonUnAutre) {
  fs::create_directory(chezLui.chemin() / "gastrelle");
  EXPECT_NE(Tente(), nullptr);
  AttendEntier();
  chezLui.Ecrit("gastrelle/GLR1.DAT", "mes recettes");
  const Contenu avant = ContenuDe(chezLui.chemin());
  EXPECT_THROW(static_cast<void>(Tente()), ErreurExecution);
  EXPECT_EQ(ContenuDe(chezLui.chemin()), avant);
}

TEST_F(Pose, NeRemplaceNiUnLienNiUnFichier) {
  const fs::path pris = chezLui.chemin() / "gastrelle";
  for (const bool lien : {true, false}) {
    if (lien) {
      fs::create_symlink("/nulle/part", pris);
    } else {
      std::ofstream(pris) << "à moi";
    }
    const Contenu avant = ContenuDe(chezLui.chemin());
    EXPECT_THROW(static_cast<void>(Tente()), ErreurExecution);
    EXPECT_EQ(ContenuDe(chezLui.chemin()), avant);
    fs::remove(pris);
  }
}

TEST_F(Pose, ExigeToutesLesCopiesDeFabriqueEtLEdition) {
  for (const char* nom : {"GLR1.stp", "GLMCN.stp", "EDITION"}) {
    SCOPED_TRACE(nom);
    fs::rename(usine.chemin() / nom, usine.chemin() / "ailleurs");
    EXPECT_EQ(PanneDe([&] { static_cast<void>(Tente()); }), Panne::fichierIntrouvable);
    EXPECT_THAT(ContenuDe(chezLui.chemin()), IsEmpty());
    fs::rename(usine.chemin() / "ailleurs", usine.chemin() / nom);
  }
}

TEST_F(Pose, SePasseDesAccessoiresEtDesImages) {
  for (const char* nom : {"gl32.hlp", "Exclamation", "presentation.html", "secours.html"}) {
    usine.Supprime(nom);
  }
  fs::remove_all(usine.chemin() / "IMAGE");
  EXPECT_NE(Tente(), nullptr);
  fs::create_directory(usine.chemin() / "IMAGE");
  AttendEntier();
}

TEST_F(Pose, NePrendQueCeQueLaFabriqueApporte) {
  usine.Ecrit("GLR1.DAT", "jamais");
  usine.Ecrit("MesNotes.txt", "jamais");
  static_cast<void>(Tente());
  EXPECT_FALSE(chezLui.A("gastrelle/GLR1.DAT"));
  EXPECT_FALSE(chezLui.A("gastrelle/MesNotes.txt"));
}

}  // namespace
}  // namespace gastrelle::essai
