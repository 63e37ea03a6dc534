// Recording doubles of what the program needs of a screen and a machine.
#pragma once

#include <deque>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "data/Module1.h"

namespace gastrelle::essai {

/// What the program's end becomes in a test.
struct FinDuProgramme {
  int statut;
};

struct MessageVu {
  std::string texte;  ///< Windows-1252, CR LF
  Icone icone;
  std::string titre;

  bool operator==(const MessageVu&) const = default;
};

/// Keeps what was said; answers questions from a script, and a question that nobody expected fails
/// the test.
class MessagesEssai final : public Messages {
 public:
  void Informe(std::string_view texte, Icone icone, std::string_view titre) override;
  Reponse Demande(std::string_view texte, Choix offert) override;
  void Bip() override { ++bips; }

  std::vector<MessageVu> vus;
  std::vector<std::string> questions;
  Choix choix = Choix::ouiNon;  ///< what the last question offered
  std::deque<Reponse> reponses;
  int bips = 0;
  /// Runs while a message is on the screen.
  std::function<void()> pendant;
};

class PointeurEssai final : public Pointeur {
 public:
  void Sablier() override {
    sablier = true;
    ++sabliers;
  }
  void FlecheSablier() override {
    Sablier();
    ++fleches;
  }
  void Normal() override { sablier = false; }

  bool sablier = false;
  int fleches = 0;   ///< how many times it was the arrow with the hourglass
  int sabliers = 0;  ///< how many times the hourglass was set
};

class HorlogeEssai final : public Horloge {
 public:
  [[nodiscard]] std::chrono::year_month_day Aujourdhui() const override { return date; }

  std::chrono::year_month_day date{std::chrono::year{2026} / 11 / 21};
};

class AssociationEssai final : public Association {
 public:
  Ouverture Ouvre(const std::string& cible) override {
    cibles.push_back(cible);
    return reponse;
  }

  std::vector<std::string> cibles;
  Ouverture reponse = Ouverture::ouverte;
};

class SonEssai final : public Son {
 public:
  void Joue(const std::filesystem::path& fichier) override { joues.push_back(fichier.string()); }

  std::vector<std::string> joues;
};

/// The end of the process throws FinDuProgramme.
class ProcessusEssai final : public Processus {
 protected:
  void Finit(int statut) override { throw FinDuProgramme{statut}; }
};

}  // namespace gastrelle::essai
