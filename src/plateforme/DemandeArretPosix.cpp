#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <ctime>
#include <fcntl.h>
#include <unistd.h>

#include "plateforme/DemandeArret.h"
#include "plateforme/DescripteurPosix.h"

namespace gastrelle {
namespace {

constexpr std::array signaux{SIGTERM, SIGHUP, SIGINT};

// All that the handler touches: it may run between any two instructions, in any thread.
std::atomic<int> ecriture{-1};
std::atomic<std::int64_t> delai{0};     // milliseconds
std::atomic<std::int64_t> premiere{0};  // when the first demand came; 0: not yet
static_assert(std::atomic<std::int64_t>::is_always_lock_free);

/// Milliseconds, never 0.
std::int64_t Maintenant() {
  constexpr std::int64_t parSeconde = 1000;
  constexpr std::int64_t nanosecondes = 1'000'000;
  timespec instant{};
  static_cast<void>(::clock_gettime(CLOCK_MONOTONIC, &instant));
  return instant.tv_sec * parSeconde + instant.tv_nsec / nanosecondes + 1;
}

void Note(int signal) {
  const int erreur = errno;
  const std::int64_t maintenant = Maintenant();
  std::int64_t avant = 0;
  if (!premiere.compare_exchange_strong(avant, maintenant) && maintenant - avant > delai) {
    static_cast<void>(std::signal(signal, SIG_DFL));
    static_cast<void>(std::raise(signal));  // comes when this function is over
  }
  [[maybe_unused]] const auto ecrits = ::write(ecriture, "", 1);
  errno = erreur;
}

}  // namespace

struct DemandeArret::Guet {
  explicit Guet(const std::array<int, 2>& bouts) : lecture(bouts[0]), ecrit(bouts[1]) {}

  Descripteur lecture;
  Descripteur ecrit;
  std::array<struct sigaction, signaux.size()> avant{};
};

DemandeArret::DemandeArret(std::chrono::milliseconds patience) {
  std::array<int, 2> bouts{};
  if (::pipe2(bouts.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
    return;
  }
  guet_ = std::make_unique<Guet>(bouts);
  ecriture = guet_->ecrit.numero();
  delai = patience.count();
  premiere = 0;
  struct sigaction note {};
  note.sa_handler = Note;
  note.sa_flags = SA_RESTART;
  for (std::size_t i = 0; i < signaux.size(); ++i) {
    struct sigaction& avant = guet_->avant[i];
    static_cast<void>(::sigaction(signaux[i], nullptr, &avant));
    if (avant.sa_handler != SIG_IGN) {
      static_cast<void>(::sigaction(signaux[i], &note, nullptr));
    }
  }
}

DemandeArret::~DemandeArret() {
  if (guet_ == nullptr) {
    return;
  }
  for (std::size_t i = 0; i < signaux.size(); ++i) {
    static_cast<void>(::sigaction(signaux[i], &guet_->avant[i], nullptr));
  }
  ecriture = -1;
}

int DemandeArret::descripteur() const {
  return guet_ == nullptr ? -1 : guet_->lecture.numero();
}

}  // namespace gastrelle
