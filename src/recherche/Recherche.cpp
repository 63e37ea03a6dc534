#include "recherche/Recherche.h"

#include <algorithm>

#include "data/ProceduresFichiers.h"
#include "data/Texte1252.h"

namespace gastrelle {
namespace {

/// A text is read in pieces, however long it is. A piece holds more than what is looked for.
constexpr std::size_t moindrePiece = std::size_t{1} << 18;

std::size_t TaillePiece(const TexteCherche& cherche) {
  return std::max(moindrePiece, 2 * cherche.longueur());
}

}  // namespace

const CatalogueCherche& CatalogueDe(EntreeVue vue) {
  return *std::find_if(cataloguesCherches.begin(), cataloguesCherches.end(),
                       [&](const CatalogueCherche& catalogue) { return catalogue.vue == vue; });
}

Recherche::Recherche(Module1& module, const CatalogueCherche& catalogue, std::string_view texte)
    : module_(module),
      catalogue_(catalogue),
      cherche_(texte),
      avance_(reserve()),
      taillePiece_(TaillePiece(cherche_)),
      // NOLINTNEXTLINE(modernize-avoid-c-arrays): untouched, it costs nothing
      piece_(std::make_unique_for_overwrite<char[]>(taillePiece_)) {}

std::optional<Occurrence> Recherche::Suivante(const std::function<void()>& entreTemps) {
  ExigeFichier(module_, catalogue_.fiches);
  ExigeFichier(module_, catalogue_.textes);
  return std::visit([&](auto tampon) { return Cherche(module_.*tampon, entreTemps); },
                    catalogue_.tampon);
}

template <class T>
std::optional<Occurrence> Recherche::Cherche(FichierEnregistrements<T>& fichier,
                                             const std::function<void()>& entreTemps) {
  std::optional<Occurrence> trouvee;
  T fiche;
  fichier.ParcourtEntre(numCourant_ + 1, fichier.Nombre(), fiche, [&](std::int32_t numero) {
    entreTemps();
    numCourant_ = numero;
    if (fiche.actif == vivant) {
      vus_ = Tenu<std::int16_t>(vus_ + 1);
      trouvee = Examine(fiche);
    }
    return !trouvee && vus_ != fichier.nbActifs();
  });
  trouves_ = trouves_ || trouvee;
  return trouvee;
}

template <class T>
std::optional<Occurrence> Recherche::Examine(const T& fiche) {
  const std::string_view champ = NomOuSignature(fiche).brut();
  const bool dansTitre = cherche_.EstDans(Rogne(champ));
  const bool avecTexte = fiche.lgTexte > 0;
  if (!dansTitre && !(avecTexte && EstDansTexte(fiche.posTexte, fiche.lgTexte))) {
    return std::nullopt;
  }
  return Occurrence{
      numCourant_, dansTitre, std::string(dansTitre ? Rogne(champ) : champ),
      avecTexte ? reserve().Lit(fiche.posTexte, fiche.lgTexte, Reserve::plafond) : std::string{}};
}

bool Recherche::EstDansTexte(std::int32_t position, std::int32_t longueur) {
  if (position == 0) {
    return false;
  }
  if (const auto lu = avance_.Rend(position, longueur)) {
    return cherche_.EstDans(*lu);
  }
  for (std::int64_t fait = 0;;) {
    const auto demande = static_cast<std::size_t>(
        std::min<std::int64_t>(static_cast<std::int64_t>(taillePiece_), longueur - fait));
    const std::size_t lus =
        reserve().LitDans(Tenu<std::int32_t>(position + fait), {piece_.get(), demande});
    if (cherche_.EstDans({piece_.get(), lus})) {
      return true;
    }
    fait += static_cast<std::int64_t>(lus);
    if (lus < demande || fait == longueur) {
      return false;
    }
    // The end of a piece is read again with the next one, where what is looked for may go on.
    fait -= static_cast<std::int64_t>(cherche_.longueur()) - 1;
  }
}

bool Recherche::EstFinie() {
  return std::visit(
      [this](auto tampon) {
        auto& fichier = module_.*tampon;
        return numCourant_ + 1 == fichier.Nombre() || vus_ == fichier.nbActifs();
      },
      catalogue_.tampon);
}

std::string_view Recherche::MessageDeFin() const {
  return trouves_ ? "Pas d'autre occurrence"_1252 : "Texte non trouvé"_1252;
}

}  // namespace gastrelle
