#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>
#include <thread>

#include "base/Disco.h"
#include "base/ErrorFichero.h"
#include "base/EspacioTrabajo.h"
#include "base/FicheroSeguro.h"
#include "base/Proceso.h"
#include "files/CarpetaTemporal.h"

namespace novex {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

TEST(EspacioTrabajo, LaMarcaDelCodigoPostalEligeElClima) {
  const EspacioTrabajo espacio{"/p"};
  EXPECT_EQ(espacio.Clima("D3", ""), fs::path("/p/databaseCTE/ZonaD3.met"));
  EXPECT_EQ(espacio.Clima("alfa3c", "46001"), fs::path("/p/databaseCTE/Zonaalfa3c.met"));
  for (const std::string ano : {"1992", "2002", "2012", "2022"})
    EXPECT_EQ(espacio.Clima("D3", "-" + ano), fs::path("/p/database" + ano + "/ZonaD3.met"));
  // Solo la marca exacta.
  for (const char* otro : {"2022", "-2021", "-20222", "- 2022", "../-2022"})
    EXPECT_EQ(CarpetaClima(otro), "databaseCTE") << otro;
}

TEST(EspacioTrabajo, BuscaLaCarpetaDeProgramaPorOrden) {
  const pruebas::CarpetaTemporal carpeta;
  const fs::path raiz = (carpeta / "").parent_path(), ejecutable = raiz / "bin" / "novex-cli";
  fs::create_directories(raiz / "bin" / "programa");  // sin `database`: no vale
  EXPECT_EQ(BuscarCarpetaPrograma(ejecutable), fs::path());
  fs::create_directories(raiz / "share" / "novex" / "database");
  EXPECT_EQ(BuscarCarpetaPrograma(ejecutable), raiz / "share" / "novex");
  fs::create_directories(raiz / "bin" / "database");
  EXPECT_EQ(BuscarCarpetaPrograma(ejecutable), raiz / "bin");
  fs::create_directories(raiz / "bin" / "programa" / "database");
  EXPECT_EQ(BuscarCarpetaPrograma(ejecutable), raiz / "bin" / "programa");
}

class FicheroSeguro : public ::testing::Test {
 protected:
  std::ptrdiff_t NumeroEntradas() const {
    return std::distance(fs::directory_iterator(carpeta_ / ""), fs::directory_iterator());
  }

  pruebas::CarpetaTemporal carpeta_;
};

TEST_F(FicheroSeguro, VuelveLoEscritoByteAByte) {
  std::string contenido("a\0\r\n\xFF\x1A", 6);
  for (int i = 0; i < 20; ++i) contenido += contenido;  // varios MiB
  const fs::path ruta = carpeta_ / "Año ñ.xml";
  EscribirFichero(ruta, contenido);
  EXPECT_TRUE(LeerFichero(ruta) == contenido);
  EscribirFichero(ruta, "");
  EXPECT_EQ(LeerFichero(ruta), "");
  EXPECT_EQ(NumeroEntradas(), 1);
  // Sustituye el fichero en vez de escribir sobre él.
  const fs::path proyecto = carpeta_ / "proyecto.xml";
  EscribirFichero(proyecto, "antiguo y más largo");
  // Quien lo tiene abierto sigue viendo el contenido antiguo entero.
  std::ifstream abierto(proyecto, std::ios::binary);
  EscribirFichero(proyecto, "nuevo");
  const std::string visto{std::istreambuf_iterator<char>(abierto), {}};
  EXPECT_EQ(visto, "antiguo y más largo");
  EXPECT_EQ(LeerFichero(proyecto), "nuevo");
}

TEST_F(FicheroSeguro, UnaEscrituraFallidaNoDejaRestos) {
  EXPECT_THROW(EscribirFichero(carpeta_ / "no_existe" / "x.xml", "x"), ErrorFichero);
  // El destino es una carpeta con contenido: no se puede renombrar encima.
  const fs::path carpeta = carpeta_ / "carpeta";
  fs::create_directories(carpeta / "dentro");
  EXPECT_THROW(EscribirFichero(carpeta, "x"), ErrorFichero);
  EXPECT_TRUE(fs::exists(carpeta / "dentro"));
  EXPECT_EQ(NumeroEntradas(), 1);
}

// Falla en una operación dada, contando todas; una escritura que falla ya ha escrito la mitad.
class DiscoQueFalla : public Disco {
 public:
  explicit DiscoQueFalla(int cual) : cual_(cual) {}
  int operaciones = 0;

  int Crear(std::string& plantilla) override { return Falla() ? -1 : Disco::Crear(plantilla); }
  ssize_t Escribir(int descriptor, std::string_view contenido) override {
    const bool falla = Falla();
    // Trozos pequeños, para que haya más de una escritura en que fallar, con alguna interrumpida.
    if (!falla && operaciones % 3 == 0) return errno = EINTR, -1;
    const ssize_t escrito = Disco::Escribir(descriptor, contenido.substr(0, kTrozo));
    return falla ? (errno = ENOSPC, -1) : escrito;
  }
  bool Volcar(int descriptor) override { return !Falla() && Disco::Volcar(descriptor); }
  bool Cerrar(int descriptor) override { return Disco::Cerrar(descriptor) && !Falla(); }
  bool Renombrar(const fs::path& de, const fs::path& a) override {
    return !Falla() && Disco::Renombrar(de, a);
  }

 private:
  static constexpr std::size_t kTrozo = 1000;
  bool Falla() { return operaciones++ == cual_; }
  int cual_;
};

TEST_F(FicheroSeguro, FalleDondeFalleQuedaEnteroElViejoOElNuevo) {
  const fs::path ruta = carpeta_ / "proyecto.xml";
  const std::string viejo(7000, 'v'), nuevo(9000, 'n');
  DiscoQueFalla sinFallos(-1);
  EscribirFicheroEn(sinFallos, ruta, viejo);
  EXPECT_EQ(LeerFichero(ruta), viejo);
  EXPECT_GT(sinFallos.operaciones, 12);
  int fallos = 0;
  for (int cual = 0; cual < 40; ++cual) {
    SCOPED_TRACE(cual);
    EscribirFichero(ruta, viejo);
    DiscoQueFalla disco(cual);
    bool escrito = true;
    try {
      EscribirFicheroEn(disco, ruta, nuevo);
    } catch (const ErrorFichero&) {
      escrito = false;
      ++fallos;
    }
    EXPECT_EQ(LeerFichero(ruta), escrito ? nuevo : viejo);
    EXPECT_EQ(NumeroEntradas(), 1);
  }
  EXPECT_GT(fallos, 12);
  EXPECT_LT(fallos, 40);
}

TEST_F(FicheroSeguro, LeerLoQueNoEsUnFicheroCorrienteOEsEnorme) {
  EXPECT_THROW(LeerFichero(carpeta_ / ""), ErrorFichero);
  EXPECT_THROW(LeerFichero("/dev/null"), ErrorFichero);
  const fs::path enorme = carpeta_ / "enorme.bin";
  std::ofstream(enorme).close();
  fs::resize_file(enorme, kTamanoMaximoFichero + 1);  // hueco: no ocupa disco
  EXPECT_THROW(LeerFichero(enorme), ErrorFichero);
  const fs::path ruta = carpeta_ / "falta.xml";
  EXPECT_THAT([&] { LeerFichero(ruta); },
              testing::Throws<ErrorFichero>(testing::Field(&ErrorFichero::ruta, ruta.string())));
  EXPECT_THAT([&] { LeerFichero(ruta); },
              testing::ThrowsMessage<ErrorFichero>(HasSubstr(ruta.string())));
}

using namespace std::chrono_literals;

bool EsperarA(const std::function<bool()>& que) {
  for (int i = 0; i < 500; ++i) {
    if (que()) return true;
    std::this_thread::sleep_for(10ms);
  }
  return false;
}

class Proceso : public testing::Test {
 protected:
  fs::path Guion(const std::string& lineas, const std::string& nombre = "un guion") const {
    const fs::path ruta = carpeta / nombre;
    EscribirFichero(ruta, "#!/bin/sh\n" + lineas + "\n");
    fs::permissions(ruta, fs::perms::owner_all);
    return ruta;
  }
  // El proceso cuyo número deja un guion en un fichero.
  pid_t Apuntado(const std::string& nombre) const {
    return static_cast<pid_t>(std::stol(LeerFichero(carpeta / nombre)));
  }
  // Un proceso matado sigue un instante como zombi hasta que alguien lo recoge.
  static bool Vive(pid_t proceso) {
    const fs::path estado = "/proc/" + std::to_string(proceso) + "/stat";
    if (!fs::exists(estado)) return false;
    std::ifstream entrada(estado);
    const std::string texto{std::istreambuf_iterator<char>(entrada), {}};
    const std::size_t fin = texto.rfind(')');
    return fin != std::string::npos && texto.compare(fin, 3, ") Z") != 0;
  }

  pruebas::CarpetaTemporal carpeta;
};

TEST_F(Proceso, LosArgumentosLleganComoEstan) {
  const auto programa = Guion("for a in \"$@\"; do printf '[%s]' \"$a\"; done; cat; exit 7");
  const auto r =
      EjecutarProceso({programa, {"a b", "\"c'", "$HOME;ls", "", "-x", "ñ*", "l\nm", "\\"}, {}});
  EXPECT_EQ(r.salida, "[a b][\"c'][$HOME;ls][][-x][ñ*][l\nm][\\]");
  EXPECT_EQ(r.codigo, 7);
  EXPECT_TRUE(r.Arrancado());
  EXPECT_FALSE(r.Bien());
  const fs::path otra = carpeta / "otra carpeta";
  fs::create_directory(otra);
  auto s = EjecutarProceso({Guion("pwd; echo mal >&2"), {}, otra});
  EXPECT_TRUE(s.Bien());
  EXPECT_EQ(s.salida, fs::canonical(otra).string() + "\n");
  EXPECT_EQ(s.errores, "mal\n");
  s = EjecutarProceso({Guion("kill -TERM $$"), {}, {}});
  EXPECT_EQ(s.senal, SIGTERM);
  EXPECT_EQ(s.codigo, -1);
  EXPECT_FALSE(s.Bien());
}

TEST_F(Proceso, LoQueNoArrancaDicePorQue) {
  const fs::path sinPermiso = carpeta / "sin permiso", ajeno = carpeta / "ajeno";
  EscribirFichero(sinPermiso, "#!/bin/sh\n");
  EscribirFichero(ajeno, "MZ no es de aquí");
  fs::permissions(ajeno, fs::perms::owner_all);
  const auto vale = Guion("exit 0");
  const std::pair<OrdenProceso, std::string> casos[] = {
      {{carpeta / "falta", {}, {}}, "no existe"},     {{sinPermiso, {}, {}}, "permiso"},
      {{ajeno, {}, {}}, "no es un programa"},         {{vale, {}, carpeta / "no hay"}, "no hay"},
      {{vale, {std::string("a\0b", 3)}, {}}, "nulo"}, {{{}, {}, {}}, "programa"}};
  for (const auto& [orden, motivo] : casos) {
    const auto r = EjecutarProceso(orden);
    EXPECT_FALSE(r.Arrancado());
    EXPECT_FALSE(r.Bien());
    EXPECT_THAT(r.motivo, HasSubstr(motivo));
    EXPECT_EQ(LanzarProceso(orden), r.motivo);
  }
  EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);  // nadie queda sin recoger
}

TEST_F(Proceso, SeGuardaElFinalDeLoMuchoQueEscribe) {
  // Por las dos salidas a la vez pasa mucho más de lo que cabe en los tubos.
  const auto programa = Guion(
      "i=0; while [ $i -lt 20000 ]; do echo \"linea $i de la salida\"; echo \"error $i\" >&2; "
      "i=$((i+1)); done");
  const auto r = EjecutarProceso({programa, {}, {}}, {60s, 100});
  ASSERT_TRUE(r.Bien());
  EXPECT_EQ(r.salida.size(), 100U);
  EXPECT_EQ(r.errores.size(), 100U);
  EXPECT_TRUE(r.salida.ends_with("linea 19998 de la salida\nlinea 19999 de la salida\n"));
  EXPECT_TRUE(r.errores.ends_with("error 19998\nerror 19999\n"));
}

TEST_F(Proceso, PasadoElPlazoMuereSuGrupo) {
  const auto programa = Guion("echo antes; sleep 60 & echo $! > nieto; wait");
  const auto inicio = std::chrono::steady_clock::now();
  const auto r = EjecutarProceso({programa, {}, carpeta / ""}, {2s});
  EXPECT_LT(std::chrono::steady_clock::now() - inicio, 20s);
  EXPECT_TRUE(r.plazoVencido);
  EXPECT_FALSE(r.Bien());
  EXPECT_EQ(r.senal, SIGKILL);
  EXPECT_EQ(r.salida, "antes\n");
  const pid_t nieto = Apuntado("nieto");
  EXPECT_TRUE(EsperarA([&] { return !Vive(nieto); }));
}

TEST_F(Proceso, NoSeEsperaALoQueElProgramaDejaAndando) {
  const auto programa = Guion("sleep 60 & echo $! > nieto; echo hecho; exit 3");
  const auto inicio = std::chrono::steady_clock::now();
  const auto r = EjecutarProceso({programa, {}, carpeta / ""});
  EXPECT_LT(std::chrono::steady_clock::now() - inicio, 20s);
  EXPECT_EQ(r.codigo, 3);
  EXPECT_EQ(r.salida, "hecho\n");
  ::kill(Apuntado("nieto"), SIGKILL);
}

TEST_F(Proceso, NoHeredaDescriptores) {
  constexpr int kAjeno = 57;
  ASSERT_EQ(::dup2(STDERR_FILENO, kAjeno), kAjeno);  // sin cierre al ejecutar
  const auto programa =
      Guion("for d in /proc/$$/fd/*; do n=${d##*/}; [ $n -gt 2 ] && readlink $d; done; exit 0");
  // El intérprete tiene abierto su guion, y nada más.
  const std::string propio = fs::canonical(programa).string() + "\n";
  EXPECT_EQ(EjecutarProceso({programa, {}, {}}).salida, propio);
  const auto suelto =
      Guion("for d in /proc/$$/fd/*; do readlink $d; done > abiertos.p; mv abiertos.p abiertos",
            "suelto");
  EXPECT_EQ(LanzarProceso({suelto, {}, carpeta / ""}), "");
  ASSERT_TRUE(EsperarA([&] { return fs::exists(carpeta / "abiertos"); }));
  const std::string abiertos = LeerFichero(carpeta / "abiertos");
  EXPECT_EQ(abiertos.find("pipe"), std::string::npos) << abiertos;
  ::close(kAjeno);
}

TEST_F(Proceso, LoLanzadoNoSeEsperaNiDejaZombi) {
  const auto programa = Guion(
      "echo $$ > numero; while [ ! -e sigue ]; do sleep 0.05; done; pwd > fin.p; mv fin.p fin");
  // Lo lanza un proceso que acaba enseguida, y que es jefe de su propio grupo.
  const pid_t lanzador = ::fork();
  if (lanzador == 0) {
    ::setpgid(0, 0);
    ::_exit(LanzarProceso({programa, {}, carpeta / ""}).empty() ? 0 : 1);
  }
  int estado = -1;
  ASSERT_EQ(::waitpid(lanzador, &estado, 0), lanzador);
  EXPECT_EQ(estado, 0);
  ::kill(-lanzador, SIGKILL);  // lo que mata al grupo del lanzador no le alcanza
  EscribirFichero(carpeta / "sigue", "");
  ASSERT_TRUE(EsperarA([&] { return fs::exists(carpeta / "fin"); }));
  EXPECT_EQ(LeerFichero(carpeta / "fin"), fs::canonical(carpeta / "").string() + "\n");

  fs::remove(carpeta / "fin");
  EXPECT_EQ(LanzarProceso({programa, {}, carpeta / ""}), "");
  ASSERT_TRUE(EsperarA([&] { return fs::exists(carpeta / "fin"); }));
  EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);
  EXPECT_EQ(errno, ECHILD);
}

TEST_F(Proceso, BuscaEnElPath) {
  const char* const antes = std::getenv("PATH");
  const std::string guardado = antes == nullptr ? "" : antes;
  for (const char* nombre : {"a", "b", "c"}) fs::create_directory(carpeta / nombre);
  EscribirFichero(carpeta / "a/herramienta", "sin permiso");
  fs::create_directory(carpeta / "b/herramienta");
  const auto buena = Guion("exit 0", "c/herramienta");
  const auto relativa = fs::relative(carpeta / "c").string();
  const auto poner = [&](const std::string& path) { ::setenv("PATH", path.c_str(), 1); };
  poner(relativa + "::" + (carpeta / "a").string() + ":" + (carpeta / "b").string());
  EXPECT_EQ(BuscarPrograma("herramienta"), fs::path());
  poner((carpeta / "a").string() + ":" + (carpeta / "b").string() + ":" + (carpeta / "c").string());
  EXPECT_EQ(BuscarPrograma("herramienta"), buena);
  EXPECT_EQ(BuscarPrograma("../c/herramienta"), fs::path());
  EXPECT_EQ(BuscarPrograma(""), fs::path());
  ::unsetenv("PATH");
  EXPECT_EQ(BuscarPrograma("herramienta"), fs::path());
  if (antes != nullptr) poner(guardado);
}

}  // namespace
}  // namespace novex
