#include "maintenance/frmReinitialisation.h"

namespace gastrelle {
namespace {

constexpr DescriptionRemplacement reinitialisation{
    .nom = "frmReinitialisation",
    .titre = u" - Réinitialisation des recettes de cuisine",
    .sujetAide = "reinitialiser",
    .demandes = {u"Vous allez effacer définitivement toutes vos recettes de cuisine mémorisées "
                 u"dans 'Gastrelle' et réinstaller celles fournies d'origine avec le logiciel.",
                 u"Je confirme vouloir effacer définitivement toutes mes recettes de cuisine "
                 u"mémorisées dans 'Gastrelle' et réinstaller celles fournies d'origine avec le "
                 u"logiciel."},
    .fin = u"Réinitialisation effectuée avec succès",
    .refus = nullptr,
    .fabrique = FabriqueOrigines,
};

}  // namespace

frmReinitialisation::frmReinitialisation(Module1& module, Cadre& cadre, QWidget* parent)
    : frmRemplacement(module, cadre, reinitialisation, parent) {}

}  // namespace gastrelle
