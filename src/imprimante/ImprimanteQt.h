// The printer of the toolkit: the system's default one, page by page.
#pragma once

#include <map>
#include <string>

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>

#include "plateforme/Imprimante.h"

namespace gastrelle {

class ImprimanteQt final : public Imprimante {
 public:
  explicit ImprimanteQt(const QPrinterInfo& laquelle);

  void PosePolice(const Police& police) override;
  [[nodiscard]] double Largeur() override;
  [[nodiscard]] double Hauteur() override;
  [[nodiscard]] double LargeurTexte(std::string_view texte) override;

 protected:
  [[nodiscard]] double HauteurLigne() override;
  void OuvrePage() override;
  void Trace(std::string_view texte, double x, double y) override;
  void Envoie() override;

 private:
  QPrinter imprimante_;
  QFont police_;
  QFontMetricsF mesures_;
  std::map<std::string, double, std::less<>> largeurs_;  ///< of words met, in the current font
  double largeur_ = 0;
  double hauteur_ = 0;
  QPainter pinceau_;  ///< the document's, from its first page on
};

}  // namespace gastrelle
