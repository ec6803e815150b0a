#include "shell/SesionProyecto.h"

#include "base/ErrorFichero.h"
#include "entry/CompletarProyecto.h"
#include "entry/ProyectoNuevo.h"
#include "outputs/bloques/DerivadosDeResultados.h"
#include "shell/Certificador.h"
#include "shell/OrdenesProyecto.h"

namespace novex {
namespace {

// Los avisos seguidos con el mismo título van en uno: de un fichero estropeado hay muchos, y cada
// uno es una caja que cerrar.
void AvisarJuntos(const std::vector<Mensaje>& avisos, Mensajes& destino) {
  constexpr std::size_t kJuntos = 12;
  for (std::size_t i = 0; i < avisos.size();) {
    std::size_t fin = i;
    std::string texto;
    for (; fin < avisos.size() && avisos[fin].titulo == avisos[i].titulo; ++fin)
      if (fin - i < kJuntos) texto += (fin == i ? "" : "\n\n") + avisos[fin].texto;
    if (fin - i > kJuntos) texto += "\n\n... y " + std::to_string(fin - i - kJuntos) + " más";
    destino.Avisar(avisos[i].titulo, texto);
    i = fin;
  }
}

constexpr std::size_t kEdicionesRecordadas = 200;

const XMLNode& PerfilesUso(FicherosPrograma& ficheros) {
  return ficheros.Xml("PerfilesUso.xml", "PERFILES_USO");
}

}  // namespace

SesionProyecto::SesionProyecto(FicherosPrograma& ficheros, Mensajes& mensajes)
    : ficheros_(ficheros), mensajes_(mensajes) {
  Nuevo();
}

SesionProyecto::Instantanea SesionProyecto::Fotografiar(std::string_view nombre,
                                                        bool completa) const {
  Instantanea foto;
  foto.nombre = nombre;
  foto.completa = completa;
  foto.activo = gestor_.NombreActivo();
  foto.revision = revision_;
  if (!completa) {
    foto.casos.emplace_back(foto.activo, gestor_.Activo().Clonar());
    return foto;
  }
  for (std::size_t i = 0; i < gestor_.NumeroCasos(); ++i) {
    const std::string_view caso = GestorEdifActivo::NombreCasoUsuario(i);
    foto.casos.emplace_back(caso, gestor_.Caso(caso)->Clonar());
  }
  return foto;
}

// Pone el proyecto como en una foto. \returns la foto de como estaba
SesionProyecto::Instantanea SesionProyecto::Cambiar(Instantanea&& foto) {
  // Una edición de un caso se deshace en él, aunque ahora se esté viendo otro.
  gestor_.ActivarCaso(foto.completa ? gestor_.NombreActivo() : foto.activo);
  Instantanea antes = Fotografiar(foto.nombre, foto.completa);
  if (foto.completa) {
    gestor_.NuevoProyecto();
    for (std::size_t i = 1; i < foto.casos.size(); ++i) gestor_.CrearCasoVacio(foto.casos[i].first);
  }
  for (auto& [nombre, edificio] : foto.casos)
    gestor_.Caso(nombre)->TomarRegistros(std::move(*edificio));
  gestor_.ActivarCaso(foto.activo);
  if (foto.activo == caso::kViejo || foto.completa) gestor_.EliminarCaso(caso::kReferencia);
  revision_ = foto.revision;
  return antes;
}

void SesionProyecto::Apuntar(Instantanea&& foto) {
  rehacer_.clear();
  deshacer_.push_back(std::move(foto));
  if (deshacer_.size() > kEdicionesRecordadas) deshacer_.erase(deshacer_.begin());
  revision_ = ++ultima_;
}

void SesionProyecto::OlvidarHistoria() {
  deshacer_.clear();
  rehacer_.clear();
  revision_ = ++ultima_;
}

void SesionProyecto::QuitarResultados(std::string_view nombre) {
  gestor_.Caso(nombre)->QuitarCalculo();
  // La referencia sale del caso base.
  if (nombre == caso::kViejo) gestor_.EliminarCaso(caso::kReferencia);
}

bool SesionProyecto::Editar(std::string_view nombre, const CambioCaso& cambio,
                            bool quitarResultados) {
  Instantanea foto = Fotografiar(nombre, false);
  cambio(gestor_.Activo());
  if (MismosRegistros(gestor_.Activo(), *foto.casos.front().second)) return false;
  if (quitarResultados) QuitarResultados(foto.activo);
  Apuntar(std::move(foto));
  return true;
}

bool SesionProyecto::Editar(std::string_view nombre, const CambioCaso& cambio) {
  return Editar(nombre, cambio, true);
}

bool SesionProyecto::EditarSinRecalcular(std::string_view nombre, const CambioCaso& cambio) {
  return Editar(nombre, cambio, false);
}

bool SesionProyecto::EditarProyecto(std::string_view nombre, const CambioProyecto& cambio,
                                    bool quitarResultados) {
  Instantanea foto = Fotografiar(nombre, true);
  cambio(gestor_);
  bool iguales = gestor_.NumeroCasos() == foto.casos.size();
  for (std::size_t i = 0; iguales && i < foto.casos.size(); ++i)
    iguales = MismosRegistros(*gestor_.Caso(foto.casos[i].first), *foto.casos[i].second);
  if (iguales) return false;
  for (std::size_t i = 0; quitarResultados && i < gestor_.NumeroCasos(); ++i)
    QuitarResultados(GestorEdifActivo::NombreCasoUsuario(i));
  Apuntar(std::move(foto));
  return true;
}

bool SesionProyecto::EditarProyecto(std::string_view nombre, const CambioProyecto& cambio) {
  return EditarProyecto(nombre, cambio, true);
}

bool SesionProyecto::EditarProyectoSinRecalcular(std::string_view nombre,
                                                 const CambioProyecto& cambio) {
  return EditarProyecto(nombre, cambio, false);
}

std::string_view SesionProyecto::QueDeshace() const {
  return deshacer_.empty() ? std::string_view() : deshacer_.back().nombre;
}

std::string_view SesionProyecto::QueRehace() const {
  return rehacer_.empty() ? std::string_view() : rehacer_.back().nombre;
}

bool SesionProyecto::Deshacer() {
  if (deshacer_.empty()) return false;
  Instantanea foto = std::move(deshacer_.back());
  deshacer_.pop_back();
  rehacer_.push_back(Cambiar(std::move(foto)));
  return true;
}

bool SesionProyecto::Rehacer() {
  if (rehacer_.empty()) return false;
  Instantanea foto = std::move(rehacer_.back());
  rehacer_.pop_back();
  deshacer_.push_back(Cambiar(std::move(foto)));
  return true;
}

void SesionProyecto::ActivarCaso(std::string_view nombre) {
  if (gestor_.Existe(nombre)) gestor_.ActivarCaso(nombre);
}

void SesionProyecto::Nuevo() {
  EmpezarProyecto(gestor_, PerfilesUso(ficheros_), mensajes_);
  DatosGenerales generales = gestor_.Activo().GetDatosGenerales();
  if (LeerCertificador(FicheroCertificador(ficheros_.Espacio()), generales, mensajes_))
    gestor_.Activo().SetDatosGenerales(std::move(generales));
  fichero_ = kNombreProyectoNuevo;
  codificacion_ = {};
  OlvidarHistoria();
  guardada_ = revision_;
}

void SesionProyecto::Empezar(const std::filesystem::path& fichero,
                             const ModoCodificacion& codificacion) {
  fichero_ = std::filesystem::absolute(fichero);
  codificacion_ = codificacion;
  OlvidarHistoria();
  guardada_ = revision_;
}

bool SesionProyecto::Abrir(const std::filesystem::path& ruta) {
  ModoCodificacion codificacion;
  RegistroMensajes avisos;
  ProyectoAbierto abierto = AbrirProyecto(gestor_, ruta, ModoApertura::Nuevo, avisos, codificacion);
  if (abierto.abierto) CompletarProyecto(gestor_, abierto, ficheros_, avisos);
  AvisarJuntos(avisos.recibidos, mensajes_);
  if (!abierto.abierto) return false;
  lectura_ = std::move(abierto.informe);
  gestor_.ActivarCaso(caso::kViejo);
  Empezar(ruta, codificacion);
  return true;
}

bool SesionProyecto::Anadir(const std::filesystem::path& ruta) {
  Instantanea foto = Fotografiar("añadir " + ruta.filename().string(), true);
  bool sustituido = false;
  ModoCodificacion codificacion;
  RegistroMensajes avisos;
  ProyectoAbierto abierto =
      AnadirProyecto(gestor_, ruta, ficheros_, avisos, sustituido, codificacion);
  AvisarJuntos(avisos.recibidos, mensajes_);
  if (!abierto.abierto) return false;
  lectura_ = std::move(abierto.informe);
  gestor_.ActivarCaso(caso::kViejo);
  // Deshacerlo dejaría los datos de antes con el fichero del otro.
  if (sustituido)
    Empezar(ruta, codificacion);
  else
    Apuntar(std::move(foto));
  return true;
}

// Los resultados son una copia que el fichero lleva para otros programas: si falta un fichero de
// límites se guarda sin ellos, que lo que ha tecleado el usuario va primero.
DatosDerivados SesionProyecto::Resultados() const {
  const auto casos = CasosCalculados(gestor_);
  if (casos.empty()) return {};
  try {
    return DerivadosDeResultados(casos, LeerDocumentosHE(ficheros_.Espacio().Datos()));
  } catch (const ErrorFichero& error) {
    mensajes_.Avisar("AVISO", std::string("Se guarda sin resultados. ") + error.what());
    return {};
  }
}

std::filesystem::path SesionProyecto::Guardar(const std::filesystem::path& ruta) {
  DarPorGuardado(
      GuardarProyecto(gestor_, ruta.empty() ? fichero_ : ruta, Resultados(), codificacion_));
  return fichero_;
}

void SesionProyecto::DarPorGuardado(const std::filesystem::path& fichero) {
  fichero_ = std::filesystem::absolute(fichero);
  guardada_ = revision_;
}

bool SesionProyecto::DuplicarCaso() {
  return DuplicarCambiando("duplicar el caso", {});
}

bool SesionProyecto::DuplicarCambiando(std::string_view nombre, const CambioCaso& cambio) {
  const std::string activo(gestor_.NombreActivo());
  return EditarProyecto(nombre, [&](GestorEdifActivo& gestor) {
    if (!novex::DuplicarCaso(gestor, activo, mensajes_).empty() && cambio) cambio(gestor.Activo());
  });
}

void SesionProyecto::BorrarCaso() {
  if (gestor_.NumeroCasos() == 1) return Nuevo();
  EditarProyecto("borrar el caso", [](GestorEdifActivo& gestor) {
    gestor.EliminarCaso(std::string(gestor.NombreActivo()));
  });
}

bool SesionProyecto::Recuperar(const std::filesystem::path& recuperacion,
                               const std::filesystem::path& original) {
  if (!Abrir(recuperacion)) return false;
  fichero_ = original;
  revision_ = ++ultima_;
  return true;
}

}  // namespace novex
