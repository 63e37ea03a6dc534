#include "memcheck/Abimes.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <filesystem>
#include <limits>
#include <map>
#include <string>
#include <vector>

#include "data/Limites.h"
#include "memcheck/Hasard.h"

namespace gastrelle::essai {
namespace {

using Bornes = std::numeric_limits<std::int32_t>;

/// What a record may hold, by field: flags, positions, lengths.
struct Valeurs {
  std::array<std::int16_t, 4> drapeaux;
  std::array<std::int32_t, 4> positions;
  std::array<std::int32_t, 4> longueurs;
};

constexpr Valeurs fauxDrapeaux{{1, 2, 32'767, -32'768}, {9, 9, 9, 9}, {5, 5, 5, 5}};
constexpr Valeurs horsDuFichier{{vivant, vivant, vivant, vivant},
                                {-1, 0, 1 << 20, Bornes::max()},
                                {0, 30'001, 1 << 20, Bornes::max()}};
// Each of them ends the program when it is read; `Negatives` spares what its start reads. All stay
// alive: a list that finds fewer records than the factory protects puts that count into the header,
// and the next start refuses the file.
constexpr Valeurs negatives{{vivant, vivant, vivant, vivant},
                            {1, 9, 16, 1000},
                            {-1, Bornes::min(), -30'000, -Bornes::max()}};

template <std::size_t N, class T>
T Un(const std::array<T, N>& parmi, Hasard& hasard) {
  return parmi[hasard.Sous(N)];
}

/// Hands every record of a catalogue behind its header, as the factory brings it, to `change`.
template <class T, class Change>
void ChaqueFiche(const DossierEssai& dossier, Donnees fichier, Change&& change) {
  std::string octets = dossier.Lit(NomFabrique(fichier));
  const std::size_t nombre = octets.size() / longueurEnregistrement<T>;
  for (std::size_t i = 1; i < nombre; ++i) {
    T fiche;
    Decode(fiche, octets.data() + i * longueurEnregistrement<T>);
    change(fiche);
    octets.replace(i * longueurEnregistrement<T>, longueurEnregistrement<T>, Octets(fiche));
  }
  dossier.Ecrit(NomFabrique(fichier), octets);
}

template <class Change>
void ChaqueFicheDeFenetre(const DossierEssai& dossier, Change&& change) {
  ChaqueFiche<RecRecette>(dossier, Donnees::GLR2, change);
  ChaqueFiche<RecFromage>(dossier, Donnees::GLF1, change);
  ChaqueFiche<RecFiche>(dossier, Donnees::GLM1, change);
  ChaqueFiche<RecFiche>(dossier, Donnees::GLT1, change);
}

/// The recipes of the family that the windows' sorted list begins with.
std::vector<std::string> PremieresMontrees(const DossierEssai& dossier) {
  std::map<std::string, std::int32_t> familles;
  std::int32_t numero = 1;
  ChaqueFiche<RecFamille>(dossier, Donnees::GLR1, [&](RecFamille& famille) {
    familles.emplace(NomOuSignature(famille).brut(), ++numero);
  });
  std::vector<std::string> montrees;
  ChaqueFiche<RecRecette>(dossier, Donnees::GLR2, [&](RecRecette& recette) {
    if (recette.idFamille == familles.begin()->second) {
      montrees.emplace_back(NomOuSignature(recette).brut());
    }
  });
  return montrees;
}

/// One record in `combien` gets values that don't belong there, unless its name is spared.
template <const Valeurs& valeurs, std::size_t combien>
void PoseValeursHors(const DossierEssai& dossier, const std::vector<std::string>& epargnes) {
  Hasard hasard;
  ChaqueFicheDeFenetre(dossier, [&](auto& fiche) {
    const std::string nom(NomOuSignature(fiche).brut());
    if (std::find(epargnes.begin(), epargnes.end(), nom) != epargnes.end()) {
      return;
    }
    if (hasard.UneFoisSur(combien)) {
      fiche.actif = Un(valeurs.drapeaux, hasard);
      fiche.posTexte = Un(valeurs.positions, hasard);
      fiche.lgTexte = Un(valeurs.longueurs, hasard);
    }
    if constexpr (requires { fiche.posImage; }) {
      if (hasard.UneFoisSur(combien)) {
        fiche.posImage = Un(valeurs.positions, hasard);
        fiche.lgImage = Un(valeurs.longueurs, hasard);
      }
    }
  });
}

template <const Valeurs& valeurs, std::size_t combien>
void PoseValeurs(const DossierEssai& dossier) {
  PoseValeursHors<valeurs, combien>(dossier, {});
}

void PoseNegatives(const DossierEssai& dossier) {
  PoseValeursHors<negatives, 10>(dossier, PremieresMontrees(dossier));
}

std::string OctetsAuHasard(Hasard& hasard, std::size_t nombre) {
  std::string octets(nombre, ' ');
  for (char& octet : octets) {
    octet = hasard.Octet();
  }
  return octets;
}

/// Titles of any bytes, and texts of which one byte in ten is any.
void PoseOctets(const DossierEssai& dossier) {
  constexpr std::size_t unSur = 10;
  Hasard hasard;
  ChaqueFicheDeFenetre(dossier, [&](auto& fiche) {
    if (hasard.UneFoisSur(3)) {
      NomOuSignature(fiche) = OctetsAuHasard(hasard, hasard.Sous(std::size_t{limiteNom}));
    }
  });
  for (const Donnees reserve : {Donnees::GLR3, Donnees::GLF2, Donnees::GLM2, Donnees::GLT2}) {
    std::string octets = dossier.Lit(NomFabrique(reserve));
    for (std::size_t i = Signature(reserve).size(); i < octets.size(); ++i) {
      if (hasard.UneFoisSur(unSur)) {
        octets[i] = hasard.Octet();
      }
    }
    dossier.Ecrit(NomFabrique(reserve), octets);
  }
}

/// Cheeses of milks and months that don't exist, recipes of families that don't, years of grades
/// that are on no scale.
void PoseCodes(const DossierEssai& dossier) {
  constexpr std::size_t unSur = 6;
  constexpr std::array<std::int16_t, 4> codes{-1, 13, 32'767, -32'768};
  Hasard hasard;
  ChaqueFiche<RecFromage>(dossier, Donnees::GLF1, [&](RecFromage& fromage) {
    if (hasard.UneFoisSur(unSur)) {
      fromage.lait = Un(codes, hasard);
      fromage.dernierMois = Un(codes, hasard);
    }
  });
  ChaqueFiche<RecMillesime>(dossier, Donnees::GLMV, [&](RecMillesime& annee) {
    if (hasard.UneFoisSur(unSur)) {
      annee.bordeauxRouges = Un(codes, hasard);
      annee.alsace = Un(codes, hasard);
    }
  });
  ChaqueFiche<RecRecette>(dossier, Donnees::GLR2, [&](RecRecette& recette) {
    if (hasard.UneFoisSur(unSur)) {
      recette.idFamille = Un(horsDuFichier.positions, hasard);
    }
  });
}

/// Record files that end within a record, pools that end within a text, pictures within a line.
void CoupeTout(const DossierEssai& dossier) {
  for (const Donnees fichier :
       {Donnees::GLR1, Donnees::GLR2, Donnees::GLR3, Donnees::GLR4, Donnees::GLF1, Donnees::GLF2,
        Donnees::GLM1, Donnees::GLM2, Donnees::GLT1, Donnees::GLT2, Donnees::GLMC}) {
    const std::string octets = dossier.Lit(NomFabrique(fichier));
    dossier.Ecrit(NomFabrique(fichier), octets.substr(0, octets.size() - octets.size() / 3));
  }
  for (const auto& image : std::filesystem::directory_iterator(dossier.chemin() / "IMAGE")) {
    std::filesystem::resize_file(image, std::filesystem::file_size(image) / 3);
  }
}

constexpr std::array abimes{
    Abime{"AucunDegat", nullptr},
    Abime{"Drapeaux", PoseValeurs<fauxDrapeaux, 3>},
    Abime{"HorsDuFichier", PoseValeurs<horsDuFichier, 2>},
    Abime{"Negatives", PoseNegatives},
    Abime{"Octets", PoseOctets},
    Abime{"Codes", PoseCodes},
    Abime{"FichiersCoupes", CoupeTout},
};

}  // namespace

std::span<const Abime> TousLesAbimes() {
  return abimes;
}

}  // namespace gastrelle::essai
