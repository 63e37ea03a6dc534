// A session manager of a test's own, in the place of the desktop's: it tells a program that the
// session ends, takes it back, or sends the program away.
#pragma once

#include <memory>

#include <QString>

namespace gastrelle::essai {

/// For one program. It answers while the test's events are processed.
class SessionEssai {
 public:
  SessionEssai();
  SessionEssai(const SessionEssai&) = delete;
  SessionEssai& operator=(const SessionEssai&) = delete;
  ~SessionEssai();

  /// What the program has to find in SESSION_MANAGER; empty if no manager can be had here.
  [[nodiscard]] QString adresse() const;
  /// True once the program has told who it is, and has had its first question.
  [[nodiscard]] bool programmePresent() const;

  /// Tells the program that the session is about to end; true once it has written what it wants to.
  bool AnnonceLaFin();
  /// The user stays after all.
  void RevientSurLaFin();
  /// Sends the program away.
  void Renvoie();
  /// The manager is gone from one moment to the next.
  void Disparait();

 private:
  struct Bureau;
  std::unique_ptr<Bureau> bureau_;
};

}  // namespace gastrelle::essai
