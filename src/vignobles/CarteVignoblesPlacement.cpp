#include "vignobles/CarteVignoblesPlacement.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "vignobles/CarteVignoblesFormes.h"

namespace gastrelle {
namespace {

constexpr double auLarge = 3;  ///< pixels between a name and a vineyard

/// What a place costs, in heights of a line: the least is taken.
constexpr double coutAbrege = 2.5;
constexpr double coutRivage = 0.25;
constexpr double coutSurvol = 4;
constexpr double coutPente = 0.8;
constexpr double coutDebord = 4;
constexpr double gainSurPlace = 2;
constexpr double coutSansPlace = 1000;

constexpr double rayonDeRecherche = 9;  ///< in heights of a line
constexpr double pasDeRecherche = 0.7;
constexpr double couvertAuMoins = 0.45;  ///< of a name that stands on its vineyard

/// The shortest line from the edge of a name to a point beside it.
QLineF TraitVers(const QRectF& cadre, const QPointF& point) {
  if (point.x() < cadre.left() || point.x() > cadre.right()) {
    const double bord = point.x() < cadre.left() ? cadre.left() : cadre.right();
    return {QPointF(bord, cadre.center().y()), point};
  }
  const double bord = point.y() < cadre.top() ? cadre.top() : cadre.bottom();
  return {QPointF(point.x(), bord), point};
}

}  // namespace

PlacementNoms::PlacementNoms(const QSizeF& taille, const QFont& police, const QTransform& versEcran)
    : place_(QRectF(QPointF(), taille).adjusted(bordDuNom, bordDuNom, -bordDuNom, -bordDuNom)),
      metrique_(police),
      hauteur_(metrique_.height()),
      grille_(taille, versEcran) {
  for (std::size_t i = 0; i < nombre; ++i) {
    points_[i] = versEcran.map(Projection(vignobles[i].lieu));
  }
}

std::vector<NomPose> PlacementNoms::Noms(bool abreges) {
  for (std::size_t i = 0; i < nombre; ++i) {
    Cherche(i, abreges);
  }
  OrdonneParGene();
  Pose();
  constexpr int retouches = 6;
  for (int retouche = 0; retouche < retouches && Ameliore(); ++retouche) {
  }
  std::vector<NomPose> noms;
  for (const Choix choisi : choisis_) {
    if (choisi != nullptr) {
      noms.push_back(choisi->nom);
    }
  }
  return noms;
}

void PlacementNoms::Cherche(std::size_t rang, bool abreges) {
  const Vignoble& vignoble = vignobles[rang];
  const bool deuxFormes = !abreges && vignoble.nom != vignoble.abrege;
  candidats_[rang].clear();
  ChercheForme(rang, vignoble.abrege, deuxFormes ? coutAbrege : 0);
  if (deuxFormes) {
    ChercheForme(rang, vignoble.nom, 0);
  }
  std::stable_sort(candidats_[rang].begin(), candidats_[rang].end(),
                   [](const Candidat& un, const Candidat& autre) { return un.cout < autre.cout; });
}

void PlacementNoms::ChercheForme(std::size_t rang, std::u16string_view forme, double supplement) {
  NomPose nom{static_cast<std::int32_t>(rang) + premierVignoble, Lisible(forme), {}, {}};
  const QSizeF mesure = MesureDuNom(metrique_, nom.texte);
  const double pas = pasDeRecherche * hauteur_;
  const double hauteur = rayonDeRecherche * hauteur_;
  const int pasEnHauteur = static_cast<int>(hauteur / pas);
  const int pasEnLargeur = static_cast<int>((hauteur + mesure.width() / 2) / pas);
  for (int y = -pasEnHauteur; y <= pasEnHauteur; ++y) {
    for (int x = -pasEnLargeur; x <= pasEnLargeur; ++x) {
      nom.cadre = QRectF(QPointF(), mesure);
      nom.cadre.moveCenter(points_[rang] + QPointF(x, y) * pas);
      if (place_.contains(nom.cadre)) {
        Considere(rang, nom, supplement);
      }
    }
  }
}

void PlacementNoms::Considere(std::size_t rang, const NomPose& nom, double supplement) {
  const int ligne = static_cast<int>(rang);
  if (grille_.EstLibre(nom.cadre.adjusted(-auLarge, -1, auLarge, 1))) {
    NomPose auBout = nom;
    auBout.trait = TraitVers(nom.cadre, points_[rang]);
    candidats_[rang].push_back({auBout, supplement + CoutAuLarge(auBout, ligne)});
    return;
  }
  const QPointF ecart = nom.cadre.center() - points_[rang];
  if (std::abs(ecart.x()) > nom.cadre.width() || std::abs(ecart.y()) > 2 * hauteur_) {
    return;
  }
  const double part = grille_.PartCouverte(nom.cadre, ligne);
  if (part >= couvertAuMoins) {
    const double cout = (1 - part) * coutDebord - gainSurPlace +
                        std::hypot(ecart.x() / 2, ecart.y()) / hauteur_ / 2;
    candidats_[rang].push_back({nom, supplement + cout});
  }
}

double PlacementNoms::CoutAuLarge(const NomPose& nom, int rang) const {
  const double pente = std::abs(nom.trait.dy()) / std::max(nom.trait.length(), 1.0);
  return (nom.trait.length() + coutRivage * grille_.Rivage(nom.cadre) +
          coutSurvol * grille_.Survol(nom.trait, rang)) /
             hauteur_ +
         coutPente * pente;
}

/// The most crowded first: they find a place only as long as there is much room.
void PlacementNoms::OrdonneParGene() {
  std::array<double, nombre> gene{};
  for (std::size_t i = 0; i < nombre; ++i) {
    for (std::size_t j = 0; j < nombre; ++j) {
      const double distance = QLineF(points_[i], points_[j]).length();
      gene[i] += i == j ? 0 : 1 / std::max(distance, 1.0);
    }
  }
  std::iota(ordre_.begin(), ordre_.end(), std::size_t{0});
  std::stable_sort(ordre_.begin(), ordre_.end(),
                   [&](std::size_t i, std::size_t j) { return gene[i] > gene[j]; });
}

/// Gives each name, in order, the best place that those before it leave.
void PlacementNoms::Pose() {
  choisis_.fill(nullptr);
  for (const std::size_t rang : ordre_) {
    choisis_[rang] = Meilleur(rang);
  }
}

/// Gives names better places, one after the other; false if there was none to be had.
bool PlacementNoms::Ameliore() {
  bool mieux = false;
  for (const std::size_t rang : ordre_) {
    mieux = AmelioreUn(rang) || mieux;
  }
  return mieux;
}

/// A better place is one that is free, or that another name can leave at less than what is won.
bool PlacementNoms::AmelioreUn(std::size_t rang) {
  for (const Candidat& voulu : candidats_[rang]) {
    if (voulu.cout >= Cout(rang)) {
      return false;
    }
    const std::vector<std::size_t> genes = Genes(voulu.nom, rang);
    if (genes.empty()) {
      choisis_[rang] = &voulu;
      return true;
    }
    if (genes.size() == 1 && Deloge(rang, &voulu, genes.front())) {
      return true;
    }
  }
  return false;
}

bool PlacementNoms::Deloge(std::size_t rang, Choix voulu, std::size_t occupant) {
  const double avant = Cout(rang) + Cout(occupant);
  const Choix sien = choisis_[rang];
  const Choix autre = choisis_[occupant];
  choisis_[rang] = voulu;
  choisis_[occupant] = nullptr;
  choisis_[occupant] = Meilleur(occupant);
  if (Cout(rang) + Cout(occupant) < avant) {
    return true;
  }
  choisis_[rang] = sien;
  choisis_[occupant] = autre;
  return false;
}

PlacementNoms::Choix PlacementNoms::Meilleur(std::size_t rang) const {
  const auto& candidats = candidats_[rang];
  const auto libre =
      std::find_if(candidats.begin(), candidats.end(), [&](const Candidat& candidat) {
        return std::none_of(choisis_.begin(), choisis_.end(), [&](const Choix autre) {
          return autre != nullptr && Gene(candidat.nom, autre->nom);
        });
      });
  return libre == candidats.end() ? nullptr : &*libre;
}

std::vector<std::size_t> PlacementNoms::Genes(const NomPose& nom, std::size_t rang) const {
  std::vector<std::size_t> genes;
  for (std::size_t i = 0; i < nombre && genes.size() < 2; ++i) {
    if (i != rang && choisis_[i] != nullptr && Gene(nom, choisis_[i]->nom)) {
      genes.push_back(i);
    }
  }
  return genes;
}

double PlacementNoms::Cout(std::size_t rang) const {
  return choisis_[rang] == nullptr ? coutSansPlace : choisis_[rang]->cout;
}

}  // namespace gastrelle
