#include "accidents/Accident.h"

#include <csignal>
#include <sstream>
#include <sys/resource.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "doublures/Enfant.h"
#include "doublures/ServicesEssai.h"

namespace gastrelle::essai {
namespace {

/// The words of a line of the journal; the names of the tests' files have no blanks.
std::vector<std::string> MotsDe(const std::string& ligne) {
  std::istringstream entree(ligne);
  std::vector<std::string> mots;
  for (std::string mot; entree >> mot;) {
    mots.push_back(mot);
  }
  return mots;
}

/// The byte of the file on which a write or a copy is half done.
rlim_t Moitie(const DisqueEssai& disque, const std::string& ligne) {
  const std::vector<std::string> mots = MotsDe(ligne);
  if (mots.at(0) == "copie") {
    return std::filesystem::file_size(disque.CheminEntier(mots.at(1))) / 2;
  }
  const std::size_t plus = mots.at(2).find('+');
  return std::stoull(mots.at(2)) + std::stoull(mots.at(2).substr(plus + 1)) / 2;
}

void LimiteLesFichiers(rlim_t octets) {
  static_cast<void>(std::signal(SIGXFSZ, SIG_DFL));
  const rlimit sansTrace{0, 0};
  const rlimit auPlus{octets, octets};
  if (::setrlimit(RLIMIT_CORE, &sansTrace) != 0 || ::setrlimit(RLIMIT_FSIZE, &auPlus) != 0) {
    ::_exit(2);
  }
}

}  // namespace

std::vector<Coup> CoupsDe(const std::vector<std::string>& journal) {
  std::vector<Coup> coups;
  for (std::size_t i = 0; i < journal.size(); ++i) {
    const std::string& ligne = journal[i];
    coups.push_back({i + 1, false, ligne});
    if (ligne.starts_with("copie ") || (ligne.starts_with("écrit ") && !ligne.ends_with("+0"))) {
      coups.push_back({i + 1, true, ligne});
    }
  }
  return coups;
}

void Arme(DisqueEssai& disque, const Coup& coup) {
  disque.pendant = [&disque, coup, appel = std::size_t{0}](const std::string& ligne) mutable {
    if (++appel != coup.appel) {
      return;
    }
    if (coup.aMoitie) {
      LimiteLesFichiers(Moitie(disque, ligne));
    } else {
      static_cast<void>(::kill(::getpid(), SIGKILL));
    }
  };
}

void Tue(DisqueEssai& disque, const Coup& coup, const std::function<void()>& sequence) {
  const int fin = Enfant([&] {
    Arme(disque, coup);
    try {
      sequence();
    } catch (const FinDuProgramme& fatale) {
      return fatale.statut;
    }
    return 0;
  });
  EXPECT_EQ(fin, coup.aMoitie ? -SIGXFSZ : -SIGKILL) << coup.ligne;
}

void Plages::Ajoute(const std::string& vu, const Coup& coup) {
  if (plages_.empty()) {
    plages_.push_back(vu);
  } else if (vu != dernier_) {
    plages_.push_back(vu + " dès " + (coup.aMoitie ? "la moitié de " : "") + coup.ligne);
  }
  dernier_ = vu;
}

}  // namespace gastrelle::essai
