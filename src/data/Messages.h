// What the program may say and ask, and what else it needs of a screen. The texts are Windows-1252.
#pragma once

#include <string_view>

namespace gastrelle {

inline constexpr std::string_view titreApplication = "Gastrelle 2005";
inline constexpr std::string_view CRLF = "\r\n";

enum class Icone { aucune, information, exclamation, critique };

/// The buttons of a question. The second one is always the default.
enum class Choix { ouiNon, ouiNonAnnuler };

enum class Reponse { oui, non, annuler };

/// Modal boxes and the beep.
class Messages {
 public:
  Messages() = default;
  Messages(const Messages&) = delete;
  Messages& operator=(const Messages&) = delete;
  virtual ~Messages() = default;

  /// A box with one OK button.
  virtual void Informe(std::string_view texte, Icone icone,
                       std::string_view titre = titreApplication) = 0;
  /// A question with the exclamation icon, No as its default, the application title.
  virtual Reponse Demande(std::string_view texte, Choix choix = Choix::ouiNon) = 0;
  virtual void Bip() = 0;
};

/// The mouse pointer.
class Pointeur {
 public:
  Pointeur() = default;
  Pointeur(const Pointeur&) = delete;
  Pointeur& operator=(const Pointeur&) = delete;
  virtual ~Pointeur() = default;

  virtual void Sablier() = 0;
  /// The arrow with the hourglass.
  virtual void FlecheSablier() = 0;
  virtual void Normal() = 0;
};

}  // namespace gastrelle
