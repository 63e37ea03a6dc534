// A text file written from its first line to its last.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "data/Messages.h"
#include "plateforme/AccesFichiers.h"

namespace gastrelle {

/// Texts are Windows-1252; every line ends in CR LF. Lines gather before they reach the file:
/// `Vide` brings the last ones there and tells whether it could, and a flow that is given up before
/// still brings there what it was given, if it can.
class FluxTexte {
 public:
  /// A file that is there loses what it held. Throws ErreurExecution if it can't be written.
  FluxTexte(AccesFichiers& disque, const std::string& nom);
  FluxTexte(const FluxTexte&) = delete;
  FluxTexte& operator=(const FluxTexte&) = delete;
  ~FluxTexte();

  /// Adds a line, given in pieces, which may hold line ends of its own. Throws ErreurExecution.
  template <class... Morceaux>
  void EcritLigne(const Morceaux&... morceaux) {
    (Ajoute(morceaux), ...);
    Ajoute(CRLF);
  }
  /// The longest line that can be read into its place, in bytes.
  static constexpr std::int32_t place = std::int32_t{1} << 18;
  /// Adds a line of at most `octets` bytes, which are at most `place`: `lit` puts them where it is
  /// told to, and tells how many they were. Throws ErreurExecution, and what `lit` throws.
  template <class Lecture>
  void EcritLigneLue(std::int32_t octets, Lecture&& lit) {
    const auto taille = static_cast<std::size_t>(octets);
    FaitPlace(taille);
    remplis_ += lit(std::span<char>(attente_.get() + remplis_, taille));
    Ajoute(CRLF);
  }
  /// Brings to the file what isn't there yet. Throws ErreurExecution; the bytes that couldn't be
  /// written are given up.
  void Vide();

 private:
  void Ajoute(std::string_view octets);
  void FaitPlace(std::size_t octets);
  void EcritOctets(std::string_view octets);

  std::unique_ptr<Fichier> fichier_;
  std::int64_t ecrits_ = 0;          ///< bytes of the file
  std::unique_ptr<char[]> attente_;  // NOLINT(modernize-avoid-c-arrays): what comes behind them
  std::size_t remplis_ = 0;          ///< of `attente_`
};

}  // namespace gastrelle
