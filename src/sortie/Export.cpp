#include "sortie/Export.h"

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "data/ListeVivants.h"
#include "data/ProceduresFichiers.h"
#include "plateforme/ErreurExecution.h"
#include "sortie/Entete.h"
#include "sortie/FluxTexte.h"
#include "sortie/TextesSuivis.h"

namespace gastrelle {
namespace {

/// What the document needs of the live recipes: one reading of their file serves every family.
class RecettesExportees {
 public:
  struct Recette {
    std::int32_t posTexte;
    std::int32_t lgTexte;
    std::size_t debutTitre;
    std::size_t lgTitre;
  };

  /// Throws on a failure.
  explicit RecettesExportees(Module1& module) {
    RecRecette lue;
    module.bufRecette.ParcourtVivants(lue, [&](std::int32_t /*numero*/) {
      const std::string_view titre = Rogne(lue.nomRecette.brut());
      familles_[lue.idFamille].push_back({lue.posTexte, lue.lgTexte, titres_.size(), titre.size()});
      titres_ += titre;
    });
  }

  /// In record order.
  [[nodiscard]] const std::vector<Recette>& DeLaFamille(std::int32_t famille) {
    return familles_[famille];
  }
  [[nodiscard]] std::string_view Titre(const Recette& recette) const {
    return std::string_view(titres_).substr(recette.debutTitre, recette.lgTitre);
  }

 private:
  std::unordered_map<std::int32_t, std::vector<Recette>> familles_;
  std::string titres_;  ///< one behind the other
};

void EcritEntete(Module1& module, FluxTexte& flux) {
  flux.EcritLigne(titreApplication, " Export des recettes au ",
                  DateCourte(module.services.horloge.Aujourdhui()), CRLF, CRLF);
}

void EcritFamille(Module1& module, std::int32_t numero, FluxTexte& flux) {
  RecFamille famille;
  module.bufFamille.Lit(numero, famille);
  flux.EcritLigne("* Famille de recettes : ", Majuscules(Rogne(famille.nomFamille.brut())), CRLF);
}

}  // namespace

Liste FamillesAExporter(Module1& module) {
  Liste familles;
  RecFamille lue;
  AjouteVivants(module.bufFamille, lue, familles);
  return familles;
}

bool AccepteExport(Module1& module) {
  if (!FichierExiste(module, documentExport)) {
    return true;
  }
  std::string question;
  question += "Un fichier EXPORT.DOC existe déjà dans le dossier"_1252;
  question.append(CRLF).append(module.chemins.cheminAppli()).append(CRLF);
  question += "Voulez-vous l'écraser ?"_1252;
  if (module.services.messages.Demande(question) != Reponse::oui) {
    return false;
  }
  PasseOutre([&] { module.services.disque.Supprime(std::string(documentExport)); });
  return true;
}

bool EcritExport(Module1& module, const std::vector<std::int32_t>& familles,
                 const std::function<void()>& entreTemps) {
  return Reussit([&] {
    FluxTexte flux(module.services.disque, std::string(documentExport));
    EcritEntete(module, flux);
    for (const Donnees fichier : {Donnees::GLR1, Donnees::GLR2, Donnees::GLR3}) {
      ExigeFichier(module, fichier);
    }
    TextesSuivis textes(module.textesRecettes);
    std::optional<RecettesExportees> recettes;
    for (const std::int32_t famille : familles) {
      entreTemps();
      EcritFamille(module, famille, flux);
      if (!recettes) {
        recettes.emplace(module);
      }
      for (const RecettesExportees::Recette& recette : recettes->DeLaFamille(famille)) {
        entreTemps();
        flux.EcritLigne("** Recette : ", recettes->Titre(recette), CRLF);
        if (recette.posTexte > 0) {
          textes.EcritDans(flux, recette.posTexte, recette.lgTexte);
          flux.EcritLigne();
        }
      }
    }
    flux.Vide();
  });
}

}  // namespace gastrelle
