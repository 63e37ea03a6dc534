#include "data/DossierPersonnel.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <set>
#include <vector>

#include "data/CatalogueFichiers.h"
#include "data/Chantier.h"
#include "plateforme/ErreurExecution.h"

namespace gastrelle {
namespace {

/// What the factory brings beside its copies of the data files; the program does without.
constexpr std::array<std::string_view, 4> accessoires{"gl32.hlp", "Exclamation",
                                                      "presentation.html", "secours.html"};

/// More than any edition is called by.
constexpr std::size_t editionAuPlus = 4096;

std::string Edition(AccesFichiers& dossier) {
  std::string texte(editionAuPlus, '\0');
  texte.resize(dossier.OuvrePourLire(std::string(fichierEdition))->Lit(0, texte));
  return texte;
}

bool PorteEdition(AccesFichiers& dossier, const std::string& edition) {
  return Reussit([&] {
    if (Edition(dossier) != edition) {
      throw ErreurExecution(Panne::fichierIntrouvable);
    }
  });
}

/// What is laid, and replaced by another edition: all factory copies, whether they are there or
/// not, and the accessories that are.
std::vector<std::string> Pieces(AccesFichiers& modeles) {
  std::vector<std::string> pieces;
  for (std::size_t i = 0; i < static_cast<std::size_t>(Donnees::GLPREF); ++i) {
    pieces.push_back(NomFabrique(static_cast<Donnees>(i)));
  }
  for (const std::string_view accessoire : accessoires) {
    if (const std::string nom(accessoire); modeles.Existe(nom)) {
      pieces.push_back(nom);
    }
  }
  return pieces;
}

std::string CheminImage(const std::string& nom) {
  return std::string(dossierDesImages) + "/" + nom;
}

/// The pictures of a folder, under their names there.
std::vector<std::string> Images(AccesFichiers& dossier) {
  std::vector<std::string> images;
  if (dossier.DossierExiste(std::string(dossierDesImages))) {
    images = dossier.FichiersDe(std::string(dossierDesImages));
    std::transform(images.begin(), images.end(), images.begin(), CheminImage);
  }
  return images;
}

/// Those that a folder hasn't. A link that leads nowhere is there as well.
std::vector<std::string> ImagesNouvelles(AccesFichiers& modeles, AccesFichiers& personnel) {
  const std::vector<std::string> presentes = Images(personnel);
  std::vector<std::string> nouvelles = Images(modeles);
  std::erase_if(nouvelles, [&](const std::string& image) {
    return std::find(presentes.begin(), presentes.end(), image) != presentes.end() ||
           personnel.DossierExiste(image);
  });
  return nouvelles;
}

/// All names that an edition may have laid.
std::set<std::string> Connus(AccesFichiers& modeles, const std::vector<std::string>& pieces) {
  std::set<std::string> connus(pieces.begin(), pieces.end());
  connus.insert(accessoires.begin(), accessoires.end());
  connus.emplace(fichierEdition);
  for (const std::string& image : Images(modeles)) {
    connus.insert(image);
  }
  return connus;
}

/// A name that a folder of the user's has would stop the replacing half way.
void ExigeRemplacables(AccesFichiers& personnel, const std::vector<std::string>& pieces) {
  for (const std::string& piece : pieces) {
    if (personnel.DossierExiste(piece)) {
      throw ErreurExecution(Panne::accesFichier);
    }
  }
}

/// A picture goes to its folder, which the user may keep on another disk by a link.
void RangeImage(AccesFichiers& personnel, const Chantier& chantier, const std::string& image) {
  if (!Reussit([&] { personnel.Renomme(chantier.De(image), image); })) {
    personnel.Copie(chantier.De(image), image);
  }
}

void RangeImages(AccesFichiers& personnel, const Chantier& chantier,
                 const std::vector<std::string>& images) {
  const std::string dossier(dossierDesImages);
  if (!personnel.DossierExiste(dossier)) {
    personnel.CreeDossier(dossier);
  }
  for (const std::string& image : images) {
    RangeImage(personnel, chantier, image);
  }
  personnel.SynchroniseNoms(dossier);
}

}  // namespace

std::unique_ptr<Instance> PoseDossierPersonnel(AccesFichiers& modeles, AccesFichiers& place,
                                               const std::string& nom) {
  const std::vector<std::string> pieces = Pieces(modeles);
  Chantier chantier(place, nom, Connus(modeles, pieces));
  for (const std::string& piece : pieces) {
    chantier.Copie(modeles, piece);
  }
  for (const std::string& image : Images(modeles)) {
    chantier.Copie(modeles, image);
  }
  chantier.Copie(modeles, std::string(fichierEdition));
  chantier.SynchroniseNoms();
  std::unique_ptr<Instance> verrou = chantier.Devient(nom);
  PasseOutre([&] { place.SynchroniseNoms({}); });  // it is there, and whole
  return verrou;
}

void RenouvelleDossierPersonnel(AccesFichiers& modeles, AccesFichiers& personnel) {
  const std::string edition(fichierEdition);
  if (PorteEdition(personnel, Edition(modeles))) {
    return;
  }
  const std::vector<std::string> pieces = Pieces(modeles);
  const std::vector<std::string> images = ImagesNouvelles(modeles, personnel);
  ExigeRemplacables(personnel, pieces);
  Chantier chantier(personnel, edition, Connus(modeles, pieces));
  for (const std::string& piece : pieces) {
    chantier.Copie(modeles, piece);
  }
  for (const std::string& image : images) {
    chantier.Copie(modeles, image);
  }
  chantier.Copie(modeles, edition);
  chantier.SynchroniseNoms();

  RangeImages(personnel, chantier, images);
  for (const std::string& piece : pieces) {
    personnel.Renomme(chantier.De(piece), piece);
  }
  personnel.SynchroniseNoms({});
  personnel.Renomme(chantier.De(edition), edition);
  personnel.SynchroniseNoms({});
}

}  // namespace gastrelle
