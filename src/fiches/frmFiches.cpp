#include "fiches/frmFiches.h"

namespace gastrelle {

frmFiches::frmFiches(Module1& module, Cadre& cadre, const DescriptionFenetre& description,
                     const JeuOnglets& jeu)
    : FenetreOnglets(module, cadre, description, jeu) {
  liste().Charge();
}

frmFichesListe& frmFiches::liste() {
  return static_cast<frmFichesListe&>(Page(ongletListe));
}

void frmFiches::MontreEnregistrement(std::int32_t numero) {
  MontreDansListe(*liste().combo, numero);
}

std::string frmFiches::Annonce() {
  const DescriptionFiches& description = liste().description;
  return std::to_string(NombreFiches(module(), description.fichiers)) + std::string(CRLF) +
         std::string(description.annonce);
}

}  // namespace gastrelle
