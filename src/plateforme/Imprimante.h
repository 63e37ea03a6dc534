// The default printer, as running text needs it: a place on the page that moves along with what is
// printed. Lengths are twips (1/1440 inch), counted from the corner of the printable part of the
// page.
#pragma once

#include <memory>
#include <string_view>

namespace gastrelle {

/// A font by its name, and its size in points.
struct Police {
  std::string_view nom;
  double corps;
};

/// A document on its way to the printer: it begins with the first line, and is sent once it is
/// finished; one that is broken off may still come out as far as it got. Texts are Windows-1252.
/// Every call may throw ErreurExecution.
class Imprimante {
 public:
  Imprimante() = default;
  Imprimante(const Imprimante&) = delete;
  Imprimante& operator=(const Imprimante&) = delete;
  virtual ~Imprimante() = default;

  /// For all that is measured and printed from now on.
  virtual void PosePolice(const Police& police) = 0;
  /// The printable part of the page.
  [[nodiscard]] virtual double Largeur() = 0;
  [[nodiscard]] virtual double Hauteur() = 0;
  /// Width of a text, its blanks included.
  [[nodiscard]] virtual double LargeurTexte(std::string_view texte) = 0;

  [[nodiscard]] double x() const { return x_; }
  /// Top of the current line.
  [[nodiscard]] double y() const { return y_; }
  void PoseX(double x) { x_ = x; }

  /// Prints at the current place, which moves behind the text. A line that doesn't fit above the
  /// foot of the page goes to the head of the next one.
  void Imprime(std::string_view texte);
  /// The end of a line, which takes its place on the page even if nothing is on it.
  void PasseALaLigne();
  /// What comes then stands on another page; a page that nothing comes on is none.
  void PasseALaPage();
  /// Sends the document. One without any line isn't sent.
  void Finit();

 protected:
  [[nodiscard]] virtual double HauteurLigne() = 0;
  /// The first page, or one more.
  virtual void OuvrePage() = 0;
  /// A text whose top left corner stands at (x, y) of the page.
  virtual void Trace(std::string_view texte, double x, double y) = 0;
  virtual void Envoie() = 0;

 private:
  void PrendPlace();

  double x_ = 0;
  double y_ = 0;
  bool commencee_ = false;    ///< the document has a page
  bool pageOuverte_ = false;  ///< what is printed goes to the page that was opened last
};

class AccesImprimante {
 public:
  AccesImprimante() = default;
  AccesImprimante(const AccesImprimante&) = delete;
  AccesImprimante& operator=(const AccesImprimante&) = delete;
  virtual ~AccesImprimante() = default;

  /// The system's default printer, for one document; null when there is none. Never throws.
  virtual std::unique_ptr<Imprimante> ParDefaut() = 0;
};

}  // namespace gastrelle
