#include "plateforme/Imprimante.h"

namespace gastrelle {

void Imprimante::PrendPlace() {
  if (pageOuverte_ && y_ + HauteurLigne() > Hauteur() && y_ > 0) {
    pageOuverte_ = false;
    y_ = 0;
  }
  if (!pageOuverte_) {
    OuvrePage();
    commencee_ = true;
    pageOuverte_ = true;
  }
}

void Imprimante::Imprime(std::string_view texte) {
  PrendPlace();
  Trace(texte, x_, y_);
  x_ += LargeurTexte(texte);
}

void Imprimante::PasseALaLigne() {
  PrendPlace();
  x_ = 0;
  y_ += HauteurLigne();
}

void Imprimante::PasseALaPage() {
  pageOuverte_ = false;
  x_ = 0;
  y_ = 0;
}

void Imprimante::Finit() {
  if (commencee_) {
    Envoie();
  }
}

}  // namespace gastrelle
