#include "files/texto/FicheroTexto.h"

#include <algorithm>
#include <optional>
#include <system_error>
#include <vector>

#include "base/ErrorFichero.h"
#include "base/Texto.h"
#include "files/texto/EtiquetaTexto.h"
#include "model/NombreMostrado.h"

namespace novex {
namespace {

constexpr std::string_view kSeccion = "** Seccion";
constexpr std::array<std::string_view, 2> kVersiones = {"*Version", "*[S] Version"};
constexpr std::string_view kFinal = "*[S] Final";
constexpr std::string_view kFinalConPunto = "*[S] Final.";
constexpr std::size_t kMemoPruebas = 1;  // el de la primera visita

bool EsVersion(std::string_view linea) {
  return std::any_of(kVersiones.begin(), kVersiones.end(),
                     [linea](std::string_view v) { return Contiene(linea, v); });
}

std::string_view NombreDe(GeneracionTexto generacion) {
  if (generacion == GeneracionTexto::Primera) return "primera";
  return generacion == GeneracionTexto::Segunda ? "segunda" : "tercera";
}

// Lo que tiene un caso antes de leer su primera línea.
void PrepararCaso(EstadoTexto& e, GeneracionTexto generacion) {
  e.r.generales.Modo_trabajo = "Nuevo";
  e.r.generales.Uso_fotovoltaico = "Refrigeracion";
  e.r.construccion.Longitud_puentes_termicos_modo = "Estimados";
  // La errata es del programa que escribía estos ficheros.
  e.r.generales.Memo[kMemoPruebas] = {generacion == GeneracionTexto::Tercera
                                          ? "No se han realizado pruebas ni comporbaciones"
                                          : "No se han realizado pruebas ni comprobaciones"};
}

// Recorre las líneas de un caso.
class Lector {
 public:
  Lector(LineasTexto& lineas, EstadoTexto& estado, GeneracionTexto generacion)
      : lineas_(lineas),
        e_(estado),
        secciones_(SeccionesDeTexto(generacion)),
        final_(generacion == GeneracionTexto::Primera ? kFinal : kFinalConPunto) {
    for (const SeccionTexto& s : secciones_)
      vistas_.push_back({0, std::vector<bool>(s.etiquetas.size()), false});
  }

  void Leer() {
    while (std::optional<std::string> linea = lineas_.Siguiente()) {
      const bool conMarca = Contiene(*linea, "*");
      if (conMarca && Contiene(*linea, kSeccion)) {
        EmpezarSeccion();
      } else if (conMarca && Contiene(*linea, final_)) {
        break;
      } else if (const auto cual = conMarca ? Buscar(*linea) : std::nullopt) {
        if (!LeerValor(*cual)) break;
      } else {
        Desconocida(std::move(*linea), conMarca);
      }
    }
    ApuntarDesconocida("");
  }

  void Informar() const;

 private:
  struct Vistas {
    std::size_t valores = 0;
    std::vector<bool> etiquetas;
    bool esta = false;
  };

  void EmpezarSeccion() {
    ApuntarDesconocida("");
    AcabarMaterial(e_);
    // Cada sección cuenta sus elementos desde el primero.
    e_.cursores = {};
    const std::string nombre = lineas_.Siguiente().value_or("");
    seccion_ = 0;
    while (seccion_ < secciones_.size() && !Contiene(nombre, secciones_[seccion_].nombre))
      ++seccion_;
    if (seccion_ < secciones_.size()) {
      vistas_[seccion_].esta = true;
    } else if (!nombre.empty()) {
      Desconocida("Sección " + nombre, true);
      ApuntarDesconocida("");
    }
  }

  std::optional<std::size_t> Buscar(const std::string& linea) const {
    if (seccion_ >= secciones_.size()) return std::nullopt;
    const auto& etiquetas = secciones_[seccion_].etiquetas;
    const auto it =
        std::find_if(etiquetas.begin(), etiquetas.end(),
                     [&linea](const EtiquetaTexto& e) { return Contiene(linea, e.texto); });
    if (it == etiquetas.end()) return std::nullopt;
    return static_cast<std::size_t>(it - etiquetas.begin());
  }

  // Lee la línea del valor de una etiqueta; es falso si el fichero se acaba antes.
  bool LeerValor(std::size_t cual) {
    ApuntarDesconocida("");
    const std::size_t numero = lineas_.Numero();
    const std::optional<std::string> valor = lineas_.Siguiente();
    if (!valor) return false;
    const EtiquetaTexto& etiqueta = secciones_[seccion_].etiquetas[cual];
    LeerValorTexto(e_, etiqueta, {etiqueta.texto, *valor, numero});
    vistas_[seccion_].etiquetas[cual] = true;
    ++vistas_[seccion_].valores;
    return true;
  }

  // Una etiqueta que no se conoce se apunta con la línea que la sigue, que es su valor.
  void Desconocida(std::string linea, bool conMarca) {
    if (!conMarca && (!desconocida_.empty() || SinBlancos(linea).empty())) {
      ApuntarDesconocida(linea);
      return;
    }
    ApuntarDesconocida("");
    desconocida_ = std::move(linea);
    lineaDesconocida_ = lineas_.Numero();
    if (!conMarca) ApuntarDesconocida("");
  }

  void ApuntarDesconocida(std::string_view valor) {
    if (desconocida_.empty()) return;
    e_.Saltar({desconocida_, valor, lineaDesconocida_}, "no se conoce");
    desconocida_.clear();
  }

  LineasTexto& lineas_;
  EstadoTexto& e_;
  const std::vector<SeccionTexto>& secciones_;
  std::string_view final_;
  std::size_t seccion_ = static_cast<std::size_t>(-1);
  std::vector<Vistas> vistas_;
  std::string desconocida_;
  std::size_t lineaDesconocida_ = 0;
};

void Lector::Informar() const {
  for (std::size_t i = 0; i < secciones_.size(); ++i) {
    const std::string nombre(secciones_[i].nombre);
    const Vistas& vistas = vistas_[i];
    if (vistas.valores > 0)
      InformeLectura::Anotar(e_.informe.leidos,
                             nombre + ": " + std::to_string(vistas.valores) + " valores");
    const auto& etiquetas = secciones_[i].etiquetas;
    std::vector<const EtiquetaTexto*> faltan;
    std::size_t datos = 0;
    for (std::size_t j = 0; j < etiquetas.size(); ++j) {
      if (!etiquetas[j].esDato) continue;
      ++datos;
      if (!vistas.etiquetas[j]) faltan.push_back(&etiquetas[j]);
    }
    if (!vistas.esta && datos > 0)
      InformeLectura::Anotar(e_.informe.porDefecto, nombre + ": no está la sección");
    else if (datos > 0 && faltan.size() == datos)
      InformeLectura::Anotar(e_.informe.porDefecto, nombre + ": la sección no tiene datos");
    else
      for (const EtiquetaTexto* falta : faltan)
        InformeLectura::Anotar(e_.informe.porDefecto,
                               nombre + ": no está \"" + falta->texto + "\"");
  }
}

// Una composición sin capas no tiene nombre: su transmitancia es la que está escrita.
void QuitarNombresSinCapas(Edificio& edificio) {
  for (std::size_t i = 0; i < kRanuras; ++i)
    if (edificio.GetComposicion(i).capas.empty())
      edificio.GetComposicion(i).nombre = composicion::kNoDefinido;
}

void AcabarCaso(EstadoTexto& e, std::string_view version) {
  AcabarMaterial(e);
  QuitarNombresSinCapas(e.edificio);
  AcabarTipologias(e);
  AcabarGenerales(e, version);
  e.r.generales.Version = kVersionTrasTexto;
  e.edificio.SetInstalaciones({});
  GuardarRegistros(std::move(e.r), e.edificio);
}

}  // namespace

std::filesystem::path RutaDeMejoras(const std::filesystem::path& ruta) {
  return ruta.parent_path() / (ruta.stem().string() + "_M" + ruta.extension().string());
}

FicheroTexto::FicheroTexto(const std::filesystem::path& ruta) : ruta_(ruta), lineas_(ruta) {
  if (!lineas_.Tiene(kSeccion))
    throw ErrorFichero(ruta.string(), 0, 0, 0,
                       "El fichero no contiene ningún edificio: \"" + ruta.string() + "\"");
}

bool FicheroTexto::QuedaCaso() {
  if (!leido_) return true;
  if (!enMejoras_) AbrirMejoras();
  return BuscarComienzo();
}

void FicheroTexto::AbrirMejoras() {
  enMejoras_ = true;
  lineas_ = {};
  const std::filesystem::path mejoras = RutaDeMejoras(ruta_);
  std::error_code error;
  if (ConFicheroDeMejoras(version_) && std::filesystem::is_regular_file(mejoras, error))
    lineas_ = LineasTexto(mejoras);
}

// Deja como siguiente la línea con que empieza un caso; es falso si no queda ninguno.
bool FicheroTexto::BuscarComienzo() {
  while (const std::optional<std::string> linea = lineas_.Siguiente()) {
    if (!EsVersion(*linea) && !Contiene(*linea, kSeccion)) continue;
    lineas_.Devolver();
    return true;
  }
  return false;
}

CasoDeTexto FicheroTexto::LeerCaso(Edificio& edificio, std::string_view nombre, Mensajes& mensajes,
                                   InformeLectura& informe) {
  leido_ = true;
  InformeLectura suyo;
  // Un caso de las mejoras que no dice su versión es de la misma que el anterior.
  if (version_.empty()) version_ = kVersionSinDecir;
  std::optional<std::string> linea = lineas_.Siguiente();
  while (linea && SinBlancos(*linea).empty()) linea = lineas_.Siguiente();
  if (linea && EsVersion(*linea))
    version_ = SinBlancos(lineas_.Siguiente().value_or(""));
  else if (linea)
    lineas_.Devolver();

  const GeneracionTexto generacion = GeneracionSupuesta(version_);
  const std::string modo = "versión \"" + version_ + "\", leída como de la " +
                           std::string(NombreDe(generacion)) + " generación";
  InformeLectura::Anotar(suyo.leidos, modo);
  if (!GeneracionDe(version_))
    InformeLectura::Anotar(suyo.porDefecto, modo + ", porque no se conoce");
  CasoDeTexto dicho;
  dicho.nombre = nombre;
  EstadoTexto estado(edificio, mensajes, suyo, dicho);
  PrepararCaso(estado, generacion);
  Lector lector(lineas_, estado, generacion);
  lector.Leer();
  lector.Informar();
  AcabarCaso(estado, version_);
  informe.Juntar(suyo, NombreMostrado(nombre) + ": ");
  return dicho;
}

}  // namespace novex
