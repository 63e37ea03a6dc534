// The inputs from which the fuzzer starts: folders that a person could meet, each with one thing
// about it.
#pragma once

#include <string>
#include <vector>

namespace gastrelle::essai {

struct Graine {
  std::string nom;  ///< name of its file in the corpus
  std::string octets;
};

std::vector<Graine> Graines();

}  // namespace gastrelle::essai
