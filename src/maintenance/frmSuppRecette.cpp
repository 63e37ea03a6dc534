#include "maintenance/frmSuppRecette.h"

namespace gastrelle {
namespace {

constexpr DescriptionRemplacement suppression{
    .nom = "frmSuppRecette",
    .titre = u" - Suppression des recettes de cuisine",
    .sujetAide = "vider",
    .demandes = {u"Vous allez effacer définitivement toutes les recettes de cuisine mémorisées "
                 u"dans 'Gastrelle'",
                 u"Je confirme vouloir effacer définitivement toutes les recettes de cuisine "
                 u"mémorisées dans 'Gastrelle'"},
    .fin = u"Effacement effectué avec succès",
    .refus = u"La recette ne peut être supprimée",
    .fabrique = FabriqueUneRecette,
};

}  // namespace

frmSuppRecette::frmSuppRecette(Module1& module, Cadre& cadre, QWidget* parent)
    : frmRemplacement(module, cadre, suppression, parent) {}

}  // namespace gastrelle
