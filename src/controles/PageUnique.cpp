#include "controles/PageUnique.h"

#include <QVBoxLayout>

#include "controles/Defilement.h"
#include "controles/Legende.h"
#include "controles/Touches.h"

namespace gastrelle {
namespace {

BandeauLogo* Bandeau(const FenetreEnfant& fenetre, const char16_t* infobulle, QWidget* parent) {
  return new BandeauLogo(fenetre.description().logo, fenetre.windowTitle(),
                         QString::fromUtf16(infobulle), parent);
}

}  // namespace

PageUnique::PageUnique(FenetreEnfant& fenetre, const char16_t* infobulle, const char* sujet)
    : QWidget(&fenetre), corps_(*this, Bandeau(fenetre, infobulle, this)) {
  setObjectName(QStringLiteral("Frame1(1)"));
  fenetre.setProperty(proprieteSujet, QLatin1String(sujet));
  auto* place = new Defilement(this, &fenetre);
  place->surTaille = [this](const QSize& taille) { corps_.bandeau->TientDans(taille); };
  auto* fond = new QVBoxLayout(&fenetre);
  fond->setContentsMargins(0, 0, 0, 0);
  fond->addWidget(place);
}

void PageUnique::AjouteColonne(int colonne, const QString& legende, QWidget* controle) {
  contenu().addWidget(Legende(legende, controle), 0, colonne);
  contenu().addWidget(controle, 1, colonne);
  contenu().setColumnStretch(colonne, 1);
}

}  // namespace gastrelle
