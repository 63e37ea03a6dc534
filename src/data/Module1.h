// The shared state of the program: its folder, the open files with their buffers, the preferences,
// the aisle texts. Declared here once, owned by `main`, handed to whoever needs it.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>

#include "data/CatalogueFichiers.h"
#include "data/Chemins.h"
#include "data/FichierEnregistrements.h"
#include "data/Messages.h"
#include "data/Reserve.h"
#include "plateforme/AccesFichiers.h"
#include "plateforme/Association.h"
#include "plateforme/Horloge.h"
#include "plateforme/Imprimante.h"
#include "plateforme/Processus.h"
#include "plateforme/Son.h"

namespace gastrelle {

/// What the program needs of the machine and of its user.
struct Services {
  AccesFichiers& disque;
  Messages& messages;
  Pointeur& pointeur;
  const Horloge& horloge;
  Association& association;
  Son& son;
  Processus& processus;
  AccesImprimante& imprimante;
};

inline constexpr std::size_t nombreRayons = 15;

struct Module1 {
  Module1(Services lesServices, Chemins lesChemins)
      : services(lesServices), chemins(std::move(lesChemins)) {}

  Services services;
  Chemins chemins;

  /// One open file for each row of the table of files; null while it is closed. For `GLPREF.DAT`
  /// null means that the file is unusable and must be opened again.
  std::array<std::unique_ptr<Fichier>, nombreFichiers> fichiers;

  FichierEnregistrements<RecFamille> bufFamille{Place(Donnees::GLR1)};
  FichierEnregistrements<RecRecette> bufRecette{Place(Donnees::GLR2)};
  FichierEnregistrements<RecFromage> bufFromage{Place(Donnees::GLF1)};
  FichierEnregistrements<RecFiche> bufMenu{Place(Donnees::GLM1)};
  FichierEnregistrements<RecRegion> bufRegion{Place(Donnees::GLV1)};
  FichierEnregistrements<RecVin> bufVin{Place(Donnees::GLV2)};
  FichierEnregistrements<RecMillesime> bufMillesime{Place(Donnees::GLMV)};
  FichierEnregistrements<RecFiche> bufTruc{Place(Donnees::GLT1)};
  FichierEnregistrements<RecFamille> bufCategorie{Place(Donnees::GLFV1)};
  FichierEnregistrements<RecFavori> bufFavori{Place(Donnees::GLFV2)};
  FichierEnregistrements<LigneRayon> bufRayon{Place(Donnees::GLMC)};
  FichierEnregistrements<RecPreferences> prefs{Place(Donnees::GLPREF)};

  Reserve textesRecettes{Place(Donnees::GLR3)};
  Reserve cheminsImages{Place(Donnees::GLR4)};
  Reserve textesFromages{Place(Donnees::GLF2)};
  Reserve textesMenus{Place(Donnees::GLM2)};
  Reserve textesVins{Place(Donnees::GLV3)};
  Reserve textesTrucs{Place(Donnees::GLT2)};
  Reserve textesFavoris{Place(Donnees::GLFV3)};

  /// Whole name of the help file (Windows-1252); empty when the program has none.
  std::string fichierAide;
  /// The code of the active window and tab; 0: none.
  std::int16_t contexteActif = 0;
  /// Set by the guard of an operation; its end then ends the program.
  bool erreurFatale = false;
  /// True until the first catalogue window has applied the window-size preference.
  bool premiereOuverture = true;

  std::array<std::string, nombreRayons> texteRayon;
  std::array<LigneRayon, nombreRayons> indexRayon;
  std::int16_t rayonCourant = 0;

  [[nodiscard]] std::unique_ptr<Fichier>& Place(Donnees fichier) {
    return fichiers[static_cast<std::size_t>(fichier)];
  }

  /// Calls `f` with the record file of a catalogue that has a header.
  template <class F>
  void AvecCatalogue(Donnees fichier, F&& f) {
    const auto si = [&](Donnees sien, auto& catalogue) { fichier == sien ? f(catalogue) : void(); };
    si(Donnees::GLR1, bufFamille);
    si(Donnees::GLR2, bufRecette);
    si(Donnees::GLF1, bufFromage);
    si(Donnees::GLM1, bufMenu);
    si(Donnees::GLV1, bufRegion);
    si(Donnees::GLV2, bufVin);
    si(Donnees::GLT1, bufTruc);
    si(Donnees::GLFV1, bufCategorie);
    si(Donnees::GLFV2, bufFavori);
  }
};

}  // namespace gastrelle
