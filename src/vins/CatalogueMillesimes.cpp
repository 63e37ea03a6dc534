#include "vins/CatalogueMillesimes.h"

#include <algorithm>

#include "data/ProceduresFichiers.h"

namespace gastrelle {
namespace {

/// More years than any chart has: a file that holds as many is damaged.
constexpr std::int32_t plafondAnnees = 1'000'000;

std::int32_t NombreExige(Module1& module) {
  const std::int32_t nombre = NombreAnnees(module);
  if (nombre < 1) {
    throw ErreurExecution(Panne::fichierIntrouvable);
  }
  if (nombre > plafondAnnees) {
    throw ErreurExecution(Panne::memoireInsuffisante);
  }
  return nombre;
}

void Pose(RecMillesime& annee, const Classement& classement) {
  for (std::size_t i = 0; i < crus.size(); ++i) {
    annee.*crus[i].degre = classement[i];
  }
}

}  // namespace

std::int32_t NombreAnnees(Module1& module) {
  return Tenu<std::int32_t>(module.bufMillesime.Nombre());
}

std::vector<std::int16_t> DegresDuCru(Module1& module, std::size_t cru) {
  ExigeFichier(module, Donnees::GLMV);
  std::vector<std::int16_t> lus;
  lus.reserve(static_cast<std::size_t>(NombreExige(module)));
  RecMillesime& annee = module.bufMillesime.courant();
  const auto retient = [&](std::int32_t /*numero*/) {
    const std::int16_t valeur = annee.*crus.at(cru).degre;
    lus.push_back(EstUnDegre(valeur) ? valeur : nonClasse);
    return true;
  };
  // The first record is a year like the others here, where other files have their header.
  module.bufMillesime.LitCourant(1);
  retient(1);
  module.bufMillesime.ParcourtTous(annee, retient);
  return lus;
}

Classement LitAnnee(Module1& module, std::int32_t numero) {
  ExigeFichier(module, Donnees::GLMV);
  module.bufMillesime.LitCourant(numero);
  return AnneeLue(module);
}

Classement AnneeLue(Module1& module) {
  const RecMillesime& annee = module.bufMillesime.courant();
  Classement classement{};
  std::transform(crus.begin(), crus.end(), classement.begin(),
                 [&](const Cru& cru) { return annee.*cru.degre; });
  return classement;
}

void AjouteAnnee(Module1& module, const Classement& classement) {
  ExigeFichier(module, Donnees::GLMV);
  Pose(module.bufMillesime.courant(), classement);
  module.bufMillesime.EcritCourant(module.bufMillesime.ProchainNumero());
}

void ChangeAnnee(Module1& module, std::int32_t numero, const Classement& classement) {
  ExigeFichier(module, Donnees::GLMV);
  Pose(module.bufMillesime.courant(), classement);
  module.bufMillesime.EcritCourant(numero);
}

}  // namespace gastrelle
