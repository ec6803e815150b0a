#include "base/Proceso.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <system_error>
#include <utility>

namespace novex {
namespace {

namespace fs = std::filesystem;
using Reloj = std::chrono::steady_clock;
using std::chrono::milliseconds;

// Descriptor del hijo por el que dice que no ha podido arrancar.
constexpr int kAviso = 3;
// Los propios se ponen por encima, para que ninguno estorbe al colocar los del hijo.
constexpr int kPrimerDescriptor = 10;
constexpr int kSinArrancar = 127;

[[noreturn]] void Fallar() {
  throw std::system_error(errno, std::generic_category());
}

// Un descriptor que se cierra solo y que no hereda nadie.
class Descriptor {
 public:
  Descriptor() = default;
  /// Toma `numero` y lo cambia por uno alto.
  explicit Descriptor(int numero) {
    if (numero < 0) Fallar();
    numero_ = ::fcntl(numero, F_DUPFD_CLOEXEC, kPrimerDescriptor);
    const int error = errno;
    ::close(numero);
    errno = error;
    if (numero_ < 0) Fallar();
  }
  Descriptor(Descriptor&& otro) noexcept : numero_(std::exchange(otro.numero_, -1)) {}
  Descriptor& operator=(Descriptor&& otro) noexcept {
    std::swap(numero_, otro.numero_);
    return *this;
  }
  ~Descriptor() { Cerrar(); }
  void Cerrar() {
    if (numero_ >= 0) ::close(std::exchange(numero_, -1));
  }
  int operator*() const { return numero_; }

 private:
  int numero_ = -1;
};

struct Tubo {
  Descriptor lectura, escritura;
};

Tubo AbrirTubo() {
  std::array<int, 2> extremos{};
  if (::pipe2(extremos.data(), O_CLOEXEC) != 0) Fallar();
  Tubo tubo;
  try {
    tubo.lectura = Descriptor(extremos[0]);
  } catch (const std::system_error&) {
    ::close(extremos[1]);
    throw;
  }
  tubo.escritura = Descriptor(extremos[1]);
  return tubo;
}

// Todo lo que el hijo necesita, preparado antes de partir: entre `fork` y `exec` no se puede
// reservar memoria.
struct Preparado {
  std::string programa, carpeta;
  std::vector<std::string> textos;
  std::vector<char*> argv;
  Descriptor nada;
  Tubo aviso;

  explicit Preparado(const OrdenProceso& orden)
      : programa(fs::absolute(orden.programa).string()),
        carpeta(orden.carpeta.string()),
        nada(::open("/dev/null", O_RDWR | O_CLOEXEC)),
        aviso(AbrirTubo()) {
    textos.push_back(programa);
    textos.insert(textos.end(), orden.argumentos.begin(), orden.argumentos.end());
    for (std::string& texto : textos) argv.push_back(texto.data());
    argv.push_back(nullptr);
  }
};

// Lo que no ha podido hacer el hijo.
struct AvisoHijo {
  enum Paso : int { Preparar, Carpeta, Programa } paso = Preparar;
  int error = 0;
};

[[noreturn]] void Rendirse(AvisoHijo::Paso paso) {
  const AvisoHijo aviso{paso, errno};
  [[maybe_unused]] const ssize_t escrito = ::write(kAviso, &aviso, sizeof aviso);
  ::_exit(kSinArrancar);
}

// Lo que sigue en el hijo hasta ser el otro programa. Solo llama a lo que se puede entre `fork` y
// `exec`.
[[noreturn]] void SerPrograma(const Preparado& p, int salida, int errores) {
  if (::dup3(*p.aviso.escritura, kAviso, O_CLOEXEC) < 0) ::_exit(kSinArrancar);
  if (::dup2(*p.nada, STDIN_FILENO) < 0 || ::dup2(salida, STDOUT_FILENO) < 0 ||
      ::dup2(errores, STDERR_FILENO) < 0)
    Rendirse(AvisoHijo::Preparar);
  ::closefrom(kAviso + 1);
  sigset_t ninguna;
  ::sigemptyset(&ninguna);
  ::sigprocmask(SIG_SETMASK, &ninguna, nullptr);
  ::signal(SIGPIPE, SIG_DFL);
  if (!p.carpeta.empty() && ::chdir(p.carpeta.c_str()) != 0) Rendirse(AvisoHijo::Carpeta);
  ::execv(p.programa.c_str(), p.argv.data());
  Rendirse(AvisoHijo::Programa);
}

// Espera a un hijo; da su estado, o nada si aún no ha acabado y no se quiere esperar.
bool Recoger(pid_t hijo, int& estado, bool esperar) {
  estado = -1;
  pid_t acabado = 0;
  do acabado = ::waitpid(hijo, &estado, esperar ? 0 : WNOHANG);
  while (acabado < 0 && errno == EINTR);
  return acabado != 0;
}

// Por qué no ha arrancado, o vacío si el otro programa ya está en marcha. Sirve para el hijo y para
// el que este deja suelto: el tubo se cierra cuando arranca.
std::string MotivoDelHijo(Preparado& p) {
  p.aviso.escritura.Cerrar();
  AvisoHijo aviso;
  ssize_t n = 0;
  do n = ::read(*p.aviso.lectura, &aviso, sizeof aviso);
  while (n < 0 && errno == EINTR);
  if (n != static_cast<ssize_t>(sizeof aviso)) return {};
  const std::string sistema = std::generic_category().message(aviso.error);
  if (aviso.paso == AvisoHijo::Carpeta)
    return "no se puede entrar en la carpeta \"" + p.carpeta + "\" (" + sistema + ")";
  if (aviso.paso == AvisoHijo::Preparar) return sistema;
  switch (aviso.error) {
    case ENOENT:
      return "no existe, o no existe lo que lo interpreta";
    case EACCES:
      return "no tiene permiso de ejecución";
    case ENOEXEC:
      return "no es un programa de este sistema";
    default:
      return sistema;
  }
}

// Lo que impide siquiera intentarlo.
std::string MotivoPrevio(const OrdenProceso& orden) {
  if (orden.programa.empty()) return "no se ha dicho qué programa";
  const auto nulo = [](const std::string& t) { return t.find('\0') != std::string::npos; };
  if (nulo(orden.programa.string()) || nulo(orden.carpeta.string()) ||
      std::any_of(orden.argumentos.begin(), orden.argumentos.end(), nulo))
    return "un argumento tiene un carácter nulo";
  return {};
}

// El final de lo que llega por un tubo.
struct Recogida {
  Descriptor tubo;
  std::size_t maximo;
  std::string texto;
  bool abierta = true;

  void Leer() {
    std::array<char, 16 * 1024> bloque;
    const ssize_t n = ::read(*tubo, bloque.data(), bloque.size());
    if (n < 0 && (errno == EINTR || errno == EAGAIN)) return;
    if (n <= 0) {
      abierta = false;
      return;
    }
    texto.append(bloque.data(), static_cast<std::size_t>(n));
    if (texto.size() > 2 * maximo + bloque.size()) Recortar();
  }
  void Recortar() {
    if (texto.size() > maximo) texto.erase(0, texto.size() - maximo);
  }
};

// Espera a que haya algo que leer, y lo lee. Da si había algo.
bool Atender(std::array<Recogida, 2>& recogidas, milliseconds espera) {
  std::array<pollfd, 2> miradas{};
  for (std::size_t i = 0; i < miradas.size(); ++i)
    miradas[i] = {recogidas[i].abierta ? *recogidas[i].tubo : -1, POLLIN, 0};
  if (::poll(miradas.data(), miradas.size(), static_cast<int>(espera.count())) <= 0) return false;
  for (std::size_t i = 0; i < miradas.size(); ++i)
    if (miradas[i].revents != 0) recogidas[i].Leer();
  return true;
}

// Recoge lo que escribe el hijo hasta que acaba; da si ha sido dentro del plazo. Un nieto puede
// tener el tubo abierto después, así que quien dice que ha acabado es el hijo y no su tubo.
bool Seguir(pid_t hijo, std::array<Recogida, 2>& recogidas, milliseconds plazo, int& estado) {
  constexpr milliseconds kVuelta{20}, kCerrado{2};
  const auto inicio = Reloj::now();
  while (!Recoger(hijo, estado, false)) {
    if (Reloj::now() - inicio >= plazo) {
      ::kill(-hijo, SIGKILL);
      Recoger(hijo, estado, true);
      return false;
    }
    Atender(recogidas, recogidas[0].abierta || recogidas[1].abierta ? kVuelta : kCerrado);
  }
  // Lo que cabe en un tubo, y no más: ese nieto puede seguir escribiendo.
  constexpr int kBloquesTubo = 64;
  for (int i = 0; i < kBloquesTubo && Atender(recogidas, milliseconds(0)); ++i) continue;
  return true;
}

ResultadoProceso Ejecutar(const OrdenProceso& orden, const LimitesProceso& limites) {
  Preparado p(orden);
  Tubo salida = AbrirTubo(), errores = AbrirTubo();
  const pid_t padre = ::getpid();
  const pid_t hijo = ::fork();
  if (hijo < 0) Fallar();
  if (hijo == 0) {
    ::setpgid(0, 0);
    // Si este programa muere no queda nadie que lo pare.
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (::getppid() != padre) ::_exit(kSinArrancar);
    SerPrograma(p, *salida.escritura, *errores.escritura);
  }
  ::setpgid(hijo, hijo);
  salida.escritura.Cerrar();
  errores.escritura.Cerrar();
  ResultadoProceso resultado;
  int estado = -1;
  resultado.motivo = MotivoDelHijo(p);
  if (!resultado.Arrancado()) {
    Recoger(hijo, estado, true);
    return resultado;
  }
  std::array<Recogida, 2> recogidas{Recogida{std::move(salida.lectura), limites.bytes, {}},
                                    Recogida{std::move(errores.lectura), limites.bytes, {}}};
  resultado.plazoVencido = !Seguir(hijo, recogidas, limites.plazo, estado);
  for (Recogida& r : recogidas) r.Recortar();
  resultado.salida = std::move(recogidas[0].texto);
  resultado.errores = std::move(recogidas[1].texto);
  if (WIFEXITED(estado)) resultado.codigo = WEXITSTATUS(estado);
  if (WIFSIGNALED(estado)) resultado.senal = WTERMSIG(estado);
  return resultado;
}

// El hijo se va enseguida y el nieto queda a cargo del sistema, que es quien lo recoge.
std::string Lanzar(const OrdenProceso& orden) {
  Preparado p(orden);
  const pid_t hijo = ::fork();
  if (hijo < 0) Fallar();
  if (hijo == 0) {
    ::setsid();
    const pid_t nieto = ::fork();
    if (nieto == 0) SerPrograma(p, *p.nada, *p.nada);
    if (nieto < 0 && ::dup2(*p.aviso.escritura, kAviso) >= 0) Rendirse(AvisoHijo::Preparar);
    ::_exit(0);
  }
  const std::string motivo = MotivoDelHijo(p);
  int estado = 0;
  Recoger(hijo, estado, true);
  return motivo;
}

}  // namespace

ResultadoProceso EjecutarProceso(const OrdenProceso& orden, const LimitesProceso& limites) {
  ResultadoProceso fallido;
  fallido.motivo = MotivoPrevio(orden);
  if (!fallido.Arrancado()) return fallido;
  try {
    return Ejecutar(orden, limites);
  } catch (const std::system_error& error) {
    fallido.motivo = error.code().message();
    return fallido;
  }
}

std::string LanzarProceso(const OrdenProceso& orden) {
  if (const std::string motivo = MotivoPrevio(orden); !motivo.empty()) return motivo;
  try {
    return Lanzar(orden);
  } catch (const std::system_error& error) {
    return error.code().message();
  }
}

std::filesystem::path BuscarPrograma(std::string_view nombre) {
  const char* variable = std::getenv("PATH");
  if (variable == nullptr || nombre.empty() || nombre.find('/') != std::string_view::npos)
    return {};
  std::string_view carpetas = variable;
  while (!carpetas.empty()) {
    const std::size_t fin = std::min(carpetas.find(':'), carpetas.size());
    const fs::path candidato = fs::path(carpetas.substr(0, fin)) / nombre;
    carpetas.remove_prefix(std::min(fin + 1, carpetas.size()));
    std::error_code sinImportancia;
    if (candidato.is_absolute() && fs::is_regular_file(candidato, sinImportancia) &&
        ::access(candidato.c_str(), X_OK) == 0)
      return candidato;
  }
  return {};
}

}  // namespace novex
