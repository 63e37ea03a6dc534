// Records read here and there in a long walk whose order isn't the file's: each block of the file
// is read once.
#pragma once

#include <cstdint>
#include <unordered_map>
#include <utility>
#include <vector>

#include "data/FichierEnregistrements.h"

namespace gastrelle {

/// For as long as nothing is written to the file.
template <class T>
class LectureParBlocs {
 public:
  explicit LectureParBlocs(FichierEnregistrements<T>& fichier) : fichier_(fichier) {}

  /// Reads record `numero` as the file itself does.
  void Lit(std::int64_t numero, T& vers) {
    if (numero < 1) {
      fichier_.Lit(numero, vers);  // which refuses it
      return;
    }
    const std::int64_t rang = (numero - 1) % Fichier::parBloc;
    const std::vector<char>& bloc = Bloc(numero - rang);
    Decode(vers, bloc.data() + rang * Fichier::longueur);
  }

 private:
  using Fichier = FichierEnregistrements<T>;
  static constexpr std::size_t gardes = 256;  // of about 64 kB each

  /// The block that begins at record `premier`; it is kept once it could be read.
  const std::vector<char>& Bloc(std::int64_t premier) {
    if (const auto place = blocs_.find(premier); place != blocs_.end()) {
      return place->second;
    }
    std::vector<char> bloc;
    fichier_.LitBloc(premier, Fichier::parBloc, bloc);
    if (blocs_.size() == gardes) {
      blocs_.clear();
    }
    return blocs_.emplace(premier, std::move(bloc)).first->second;
  }

  Fichier& fichier_;
  std::unordered_map<std::int64_t, std::vector<char>> blocs_;
};

}  // namespace gastrelle
