// The system's demand to stop. Each test runs in a process of its own making.

#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "doublures/Enfant.h"
#include "doublures/Limites.h"
#include "plateforme/DemandeArret.h"

namespace gastrelle::essai {
namespace {

using std::chrono::milliseconds;

constexpr int tenu = 7;  // the status of a child process that found what it expected

bool Lisible(const DemandeArret& demande) {
  pollfd guet{demande.descripteur(), POLLIN, 0};
  return ::poll(&guet, 1, 0) == 1;
}

class SignalDArret : public testing::TestWithParam<int> {};

TEST_P(SignalDArret, SansEcouteFinitLeProcessus) {
  EXPECT_EQ(Enfant([] {
              ::kill(::getpid(), GetParam());
              return 1;
            }),
            -GetParam());
}

TEST_P(SignalDArret, SeDitAuLieuDeFinirLeProcessus) {
  EXPECT_EQ(Enfant([] {
              const DemandeArret demande;
              if (Lisible(demande)) {
                return 1;
              }
              ::kill(::getpid(), GetParam());
              return Lisible(demande) && Lisible(demande) ? tenu : 2;
            }),
            tenu);
}

TEST_P(SignalDArret, DitDeuxFoisNEstQuUneDemande) {
  EXPECT_EQ(Enfant([] {
              const DemandeArret demande;
              constexpr int souvent = 100'000;  // more than a pipe holds
              for (int i = 0; i < souvent; ++i) {
                ::kill(::getpid(), GetParam());
              }
              return Lisible(demande) ? tenu : 1;
            }),
            tenu);
}

TEST_P(SignalDArret, DitEncorePlusTardFinitLeProcessus) {
  EXPECT_EQ(Enfant([] {
              const DemandeArret demande(milliseconds(20));
              ::kill(::getpid(), SIGTERM);
              ::usleep(60'000);
              ::kill(::getpid(), GetParam());
              return 1;
            }),
            -GetParam());
}

TEST_P(SignalDArret, IgnoreAuDepartResteIgnore) {
  EXPECT_EQ(Enfant([] {
              static_cast<void>(::signal(GetParam(), SIG_IGN));
              {
                const DemandeArret demande;
                ::kill(::getpid(), GetParam());
                if (Lisible(demande)) {
                  return 1;
                }
              }
              ::kill(::getpid(), GetParam());
              return tenu;
            }),
            tenu);
}

TEST_P(SignalDArret, RevientCommeAvantQuandPersonneNEcoutePlus) {
  EXPECT_EQ(Enfant([] {
              { const DemandeArret demande; }
              ::kill(::getpid(), GetParam());
              return 1;
            }),
            -GetParam());
}

TEST_P(SignalDArret, NEstPasCacheAuxProgrammesOuverts) {
  EXPECT_EQ(Enfant([] {
              const DemandeArret demande;
              const std::string commande = "kill -" + std::to_string(GetParam()) + " $$; exit 3";
              ::execl("/bin/sh", "sh", "-c", commande.c_str(), nullptr);
              return 1;
            }),
            -GetParam());
}

INSTANTIATE_TEST_SUITE_P(Signaux, SignalDArret, testing::Values(SIGTERM, SIGHUP, SIGINT),
                         [](const testing::TestParamInfo<int>& cas) {
                           return std::string(::sigabbrev_np(cas.param));
                         });

TEST(DemandeArret, NInterromptPasCeQuiEstEnCours) {
  EXPECT_EQ(Enfant([] {
              const DemandeArret demande;
              int bouts[2];
              if (::pipe(bouts) != 0) {
                return 1;
              }
              if (::fork() == 0) {
                ::usleep(30'000);
                ::kill(::getppid(), SIGTERM);
                ::usleep(30'000);
                ::_exit(::write(bouts[1], "x", 1) == 1 ? 0 : 1);
              }
              char lu = 0;
              return ::read(bouts[0], &lu, 1) == 1 && lu == 'x' && Lisible(demande) ? tenu : 2;
            }),
            tenu);
}

TEST(DemandeArret, NeResteOuvertChezPersonne) {
  EXPECT_EQ(Enfant([] {
              int numero = -1;
              {
                const DemandeArret demande;
                numero = demande.descripteur();
                if ((::fcntl(numero, F_GETFD) & FD_CLOEXEC) == 0) {
                  return 1;
                }
              }
              return ::fcntl(numero, F_GETFD) < 0 && ::fcntl(numero + 1, F_GETFD) < 0 ? tenu : 2;
            }),
            tenu);
}

TEST(DemandeArret, SansPlaceLeSystemeFinitLeProcessusCommeAvant) {
  EXPECT_EQ(Enfant([] {
              PoseLimite(RLIMIT_NOFILE, 3, 3);
              const DemandeArret demande;
              if (demande.descripteur() >= 0) {
                return 1;
              }
              ::kill(::getpid(), SIGTERM);
              return 2;
            }),
            -SIGTERM);
}

}  // namespace
}  // namespace gastrelle::essai
