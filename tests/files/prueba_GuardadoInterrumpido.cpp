#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <random>
#include <thread>

#include "CarpetaTemporal.h"
#include "base/FicheroSeguro.h"
#include "files/ProyectoFichero.h"

namespace novex {
namespace {

namespace fs = std::filesystem;

class GuardadoInterrumpido : public testing::Test {
 protected:
  GuardadoInterrumpido() {
    RegistroMensajes mensajes;
    for (GestorEdifActivo* gestor : {&corto_, &largo_})
      AbrirProyecto(*gestor, NOVEX_RAIZ_DATOS "/proyectos/piso_C2.xml", ModoApertura::Nuevo,
                    mensajes);
    for (int i = 0; i < 5; ++i) largo_.AnadirMejora();
  }
  // Un proceso que guarda sin parar un proyecto y otro en el mismo fichero. \returns su número
  pid_t Guardador() {
    const pid_t hijo = ::fork();
    if (hijo != 0) return hijo;
    for (;;) {
      GuardarProyecto(corto_, ruta_);
      GuardarProyecto(largo_, ruta_);
    }
  }

  pruebas::CarpetaTemporal carpeta_;
  fs::path ruta_ = carpeta_ / "proyecto.xml";
  GestorEdifActivo corto_, largo_;
};

TEST_F(GuardadoInterrumpido, MatadoEnCualquierMomentoElFicheroEstaEntero) {
  const auto antes = std::chrono::steady_clock::now();
  GuardarProyecto(largo_, ruta_);
  const std::chrono::duration<double, std::micro> tarda = std::chrono::steady_clock::now() - antes;
  const std::string largo = LeerFichero(ruta_);
  GuardarProyecto(corto_, ruta_);
  const std::string corto = LeerFichero(ruta_);
  ASSERT_GT(largo.size(), 4 * corto.size());
  std::mt19937 azar(20260930);
  // Le da tiempo a guardar los dos alguna vez y a estar en medio de cualquiera.
  std::uniform_real_distribution<double> espera(0, 3 * tarda.count());
  int cortos = 0, aMedias = 0;
  // Escribir es lo más corto de guardar: se repite hasta haberle matado escribiendo.
  constexpr int kVeces = 60, kMaximo = 600;
  int veces = 0;
  for (; veces < kVeces || (aMedias == 0 && veces < kMaximo); ++veces) {
    const pid_t hijo = Guardador();
    ASSERT_GT(hijo, 0);
    std::this_thread::sleep_for(std::chrono::duration<double, std::micro>(espera(azar)));
    ::kill(hijo, SIGKILL);
    int estado = 0;
    ASSERT_EQ(::waitpid(hijo, &estado, 0), hijo);
    ASSERT_TRUE(WIFSIGNALED(estado)) << "el proceso ha acabado antes de matarlo";
    const std::string contenido = LeerFichero(ruta_);
    ASSERT_TRUE(contenido == corto || contenido == largo) << "vez " << veces;
    cortos += contenido == corto ? 1 : 0;
    for (const auto& entrada : fs::directory_iterator(ruta_.parent_path()))
      if (entrada.path() != ruta_) {
        ++aMedias;
        fs::remove(entrada.path());
      }
  }
  // Se le ha matado guardando cualquiera de los dos, y alguna vez a medias de escribir.
  EXPECT_GT(cortos, 0);
  EXPECT_LT(cortos, veces);
  EXPECT_GT(aMedias, 0);
}

}  // namespace
}  // namespace novex
