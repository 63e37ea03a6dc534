#include "sortie/Documents.h"

#include <utility>

#include "data/Surcharge.h"
#include "data/Texte1252.h"
#include "plateforme/ErreurExecution.h"
#include "sortie/Entete.h"
#include "sortie/FluxTexte.h"

namespace gastrelle {
namespace {

/// A label and its value, with an empty line behind.
std::string JointEtSaute(std::string_view legende, std::string_view valeur) {
  return Joint(legende, valeur).append(CRLF);
}

}  // namespace

LignesTexte EcritRecette(const VueRecette& vue) {
  return {Joint("Famille de recettes : ", vue.famille),
          {},
          Joint("Recette : ", vue.titre),
          {},
          vue.texte};
}

LignesTexte EcritFromage(const VueFromage& vue) {
  LignesTexte lignes{JointEtSaute("Le fromage : ", Rogne(vue.nom)),
                     JointEtSaute("Sa région d'origine : "_1252, vue.region),
                     JointEtSaute("Au lait de : ", vue.lait)};
  std::string periode = Joint("Meilleure période de dégustation : de "_1252, vue.premierMois);
  periode += Joint(" à "_1252, vue.dernierMois);
  lignes.push_back(std::move(periode));
  if (!vue.notes.empty()) {
    lignes.emplace_back();
    lignes.push_back(Joint("Notes :", vue.notes));
  }
  return lignes;
}

LignesTexte EcritMenu(const VueMenu& vue) {
  return {Joint("Menu : ", vue.titre), {}, vue.texte};
}

LignesTexte EcritVin(const VueVin& vue) {
  LignesTexte lignes{JointEtSaute("Le vin : ", vue.nom),
                     Joint("Sa région d'origine : "_1252, vue.region)};
  if (!vue.notes.empty()) {
    lignes.emplace_back();
    lignes.push_back(vue.notes);
  }
  return lignes;
}

LignesTexte EcritFromagesTries(const VueFromagesTries& vue) {
  LignesTexte lignes{Joint("Fromages au lait de : ", Rogne(vue.lait.value_or("")))};
  AjouteRognees(lignes, vue.fromages);
  return lignes;
}

LignesTexte EcritVinsTries(const VueVinsTries& vue) {
  LignesTexte lignes{Joint("La région d'origine : "_1252, Rogne(vue.region.value_or(""))),
                     "Les vins :"};
  AjouteRognees(lignes, vue.vins);
  return lignes;
}

LignesTexte EcritCave(const VueCave& vue) {
  LignesTexte lignes{JointEtSaute("Toute ma cave", {})};
  AjouteRognees(lignes, vue.lignes);
  return lignes;
}

LignesTexte EcritMillesimes(const VueMillesimes& vue) {
  constexpr std::int16_t degres = 5;
  constexpr std::string_view coche = "      x       ";
  constexpr std::string_view rien = "              ";
  LignesTexte lignes{JointEtSaute("Millésimes des vins : "_1252, Rogne(vue.cru)),
                     std::string("Année Petite année  Année moyenne Bonne année   "
                                 "Grande année  Exceptionnel"_1252)};
  for (const AnneeClassee& annee : vue.annees) {
    std::string ligne = Joint(std::to_string(annee.annee), "  ");
    for (std::int16_t degre = 1; degre <= degres; ++degre) {
      ligne += annee.degre == degre ? coche : rien;
    }
    lignes.push_back(std::move(ligne));
  }
  return lignes;
}

LignesTexte EcritTruc(const VueTruc& vue) {
  return {Joint("Terme, truc ou astuce : ", vue.titre), {}, vue.texte};
}

LignesTexte EcritFavori(const VueFavori& vue) {
  LignesTexte lignes{Joint("Favori : ", vue.nom)};
  AjouteDetails(lignes, vue);
  return lignes;
}

LignesTexte EcritFavorisTries(const VueFavorisTries& vue) {
  LignesTexte lignes{Joint("Catégorie de favoris : "_1252, vue.categorie.value_or("")),
                     "Les favoris :"};
  AjouteRognees(lignes, vue.favoris);
  return lignes;
}

Document DocumentDe(const Vue& vue) {
  const Surcharge document{
      [](const VueRecette& v) {
        return Document{"recette", EcritRecette(v)};
      },
      [](const VueFromage& v) {
        return Document{"fromage", EcritFromage(v)};
      },
      [](const VueFromagesTries& v) {
        return Document{"fromtri", EcritFromagesTries(v)};
      },
      [](const VueMenu& v) {
        return Document{"menu", EcritMenu(v)};
      },
      [](const VueVin& v) {
        return Document{"vin", EcritVin(v)};
      },
      [](const VueVinsTries& v) {
        return Document{"vintri", EcritVinsTries(v)};
      },
      [](const VueCave& v) {
        return Document{"vincave", EcritCave(v)};
      },
      [](const VueMillesimes& v) {
        return Document{"millesim", EcritMillesimes(v)};
      },
      [](const VueTruc& v) {
        return Document{"truc", EcritTruc(v)};
      },
      [](const VueFavori& v) {
        return Document{"favori", EcritFavori(v)};
      },
      [](const VueFavorisTries& v) {
        return Document{"favtri", EcritFavorisTries(v)};
      },
      [](const auto&) { return Document{}; },
  };
  return std::visit(document, vue);
}

bool EcritDocument(Module1& module, const std::string& nom, const LignesTexte& corps) {
  AccesFichiers& disque = module.services.disque;
  PasseOutre([&] { disque.Supprime(nom); });
  return Reussit([&] {
    FluxTexte flux(disque, nom);
    flux.EcritLigne(EnteteEdition(module), CRLF);
    for (const std::string& ligne : corps) {
      flux.EcritLigne(ligne);
    }
    flux.Vide();
  });
}

}  // namespace gastrelle
