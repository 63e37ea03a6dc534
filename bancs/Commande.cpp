#include "Commande.h"

#include <cerrno>
#include <fcntl.h>
#include <spawn.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace gastrelle::bancs {
namespace {

/// Where the output of a command goes.
class Sortie {
 public:
  explicit Sortie(const std::filesystem::path& fichier) {
    constexpr mode_t droits = 0666;
    if (::posix_spawn_file_actions_init(&actions_) != 0 ||
        ::posix_spawn_file_actions_addopen(&actions_, STDOUT_FILENO, fichier.c_str(),
                                           O_WRONLY | O_CREAT | O_TRUNC, droits) != 0) {
      throw std::runtime_error("pas de place pour lancer une commande");
    }
  }
  Sortie(const Sortie&) = delete;
  Sortie& operator=(const Sortie&) = delete;
  ~Sortie() { ::posix_spawn_file_actions_destroy(&actions_); }

  [[nodiscard]] const posix_spawn_file_actions_t& actions() const { return actions_; }

 private:
  posix_spawn_file_actions_t actions_{};
};

}  // namespace

int Execute(const std::vector<std::string>& commande, const std::filesystem::path& sortie) {
  std::vector<std::string> mots = commande;
  std::vector<char*> arguments;
  arguments.reserve(mots.size() + 1);
  for (std::string& mot : mots) {
    arguments.push_back(mot.data());
  }
  arguments.push_back(nullptr);
  const Sortie vers(sortie);
  pid_t lancee = 0;
  int statut = -1;
  bool finie = ::posix_spawnp(&lancee, arguments.front(), &vers.actions(), nullptr,
                              arguments.data(), environ) == 0;
  while (finie && ::waitpid(lancee, &statut, 0) != lancee) {
    finie = errno == EINTR;
  }
  if (!finie || !WIFEXITED(statut)) {
    throw std::runtime_error(commande.front() + " a échoué");
  }
  return WEXITSTATUS(statut);
}

}  // namespace gastrelle::bancs
