// The twenty data files, one table, in the order in which the program opens them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace gastrelle {

/// Number of a data file: its row in the table below.
enum class Donnees : std::size_t {
  GLR1,
  GLR2,
  GLR3,
  GLR4,
  GLF1,
  GLF2,
  GLM1,
  GLM2,
  GLV1,
  GLV2,
  GLV3,
  GLMV,
  GLT1,
  GLT2,
  GLFV1,
  GLFV2,
  GLFV3,
  GLMC,
  GLMCN,
  GLPREF,
};

inline constexpr std::size_t nombreFichiers = 20;

enum class Controle {
  aucun,      ///< opening the file is the whole test
  entete,     ///< count and signature of record 1
  signature,  ///< the first bytes are the file's own name
};

enum class Rognage { droite, deuxBouts };

struct LigneCatalogue {
  std::string_view nom;
  std::size_t longueur;  ///< of a record, in bytes; 0 for a byte stream
  Controle controle;
  std::int16_t moindre = 0;  ///< least count of live records: that of the factory, all protected
  Rognage rognage = Rognage::droite;  ///< what is taken off a header's signature before the test
  std::string_view signature = {};    ///< where it isn't the file's own name
};

inline constexpr std::array<LigneCatalogue, nombreFichiers> catalogueFichiers{{
    {"GLR1.DAT", 130, Controle::entete, 1, Rognage::deuxBouts, "GASTRELF.DAT"},
    {"GLR2.DAT", 150, Controle::entete, 1},
    {"GLR3.DAT", 0, Controle::signature},
    {"GLR4.DAT", 0, Controle::signature},
    {"GLF1.DAT", 208, Controle::entete, 122},
    {"GLF2.DAT", 0, Controle::signature},
    {"GLM1.DAT", 138, Controle::entete, 15},
    {"GLM2.DAT", 0, Controle::signature},
    {"GLV1.DAT", 66, Controle::entete, 27},
    {"GLV2.DAT", 104, Controle::entete, 563},
    {"GLV3.DAT", 0, Controle::signature},
    {"GLMV.DAT", 18, Controle::aucun},
    {"GLT1.DAT", 138, Controle::entete, 167},
    {"GLT2.DAT", 0, Controle::signature},
    {"GLFV1.DAT", 130, Controle::entete, 3, Rognage::deuxBouts},
    {"GLFV2.DAT", 724, Controle::entete, 14, Rognage::deuxBouts},
    {"GLFV3.DAT", 0, Controle::signature},
    {"GLMC.DAT", 8, Controle::aucun},
    {"GLMCN.DAT", 0, Controle::signature},
    {"GLPREF.DAT", 6, Controle::aucun},
}};

constexpr const LigneCatalogue& Ligne(Donnees fichier) {
  return catalogueFichiers[static_cast<std::size_t>(fichier)];
}

inline std::string Nom(Donnees fichier) {
  return std::string(Ligne(fichier).nom);
}

/// The text that stands in the header, or at the head of a pool.
constexpr std::string_view Signature(Donnees fichier) {
  const LigneCatalogue& ligne = Ligne(fichier);
  return ligne.signature.empty() ? ligne.nom : ligne.signature;
}

/// The name of a data file with another extension, of three letters.
inline std::string NomAvecExtension(Donnees fichier, std::string_view extension) {
  std::string nom = Nom(fichier);
  nom.replace(nom.size() - 3, 3, extension);
  return nom;
}

/// The factory copy beside a data file.
inline std::string NomFabrique(Donnees fichier) {
  return NomAvecExtension(fichier, "stp");
}

/// What stands beside a data file while it is rebuilt or replaced.
inline std::string NomTemporaire(Donnees fichier) {
  return NomAvecExtension(fichier, "tmp");
}

/// Families, recipes, texts, picture paths: the four files that only make sense together.
inline constexpr std::array<Donnees, 4> fichiersRecettes{Donnees::GLR1, Donnees::GLR2,
                                                         Donnees::GLR3, Donnees::GLR4};

/// Number of the last record that the factory brought, which can't be deleted.
constexpr std::int32_t DernierProtege(Donnees fichier) {
  return Ligne(fichier).moindre + 1;
}

}  // namespace gastrelle
