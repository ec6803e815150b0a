#include "files/ProyectoFichero.h"

#include <algorithm>
#include <cctype>
#include <string>

#include "base/ErrorFichero.h"
#include "base/MensajesAcotados.h"
#include "base/Texto.h"
#include "files/CamposFichero.h"
#include "files/ErroresXml.h"
#include "files/VersionProyecto.h"
#include "files/texto/FicheroTexto.h"
#include "model/NombreMostrado.h"

namespace novex {
namespace {

constexpr std::string_view kRaiz = "DatosEnergeticosDelEdificio";
constexpr std::string_view kCasos = "DatosPersonalizados";
constexpr std::string_view kCaso = "Novex";
constexpr std::string_view kDeclaracion = "xml version=\"1.0\" encoding=\"UTF-8\"";
constexpr std::size_t kMaximoRecuento = 7;

enum class Formato { Xml, Texto, Ninguno };

// Los ficheros antiguos pueden tener la extensión en mayúsculas.
Formato FormatoDe(const std::filesystem::path& ruta) {
  const std::string extension = ruta.extension().string();
  if (IgualesSinMayusculas(extension, ".txt")) return Formato::Texto;
  if (IgualesSinMayusculas(extension, ".xml")) return Formato::Xml;
  const std::string texto = ruta.string();
  const auto contiene = [&texto](const char* parte) {
    return texto.find(parte) != std::string::npos;
  };
  if (contiene("xml") || contiene("XML")) return Formato::Xml;
  return contiene("txt") ? Formato::Texto : Formato::Ninguno;
}

// Tienen un elemento por caso los de disposición actual y los que ya guardaban los meses del verano
// en el sitio; los demás guardan las mejoras en otro fichero.
bool EsDeVariosCasos(const XMLNode& primero) {
  const bool conMeses =
      primero.childNamed("Datos_Geograficos").childNamed("mesmin").hasAttribute(kAtributoValor);
  return conMeses || ReglasDe(TextoDeHijo(primero, kEtiquetaVersion)).disposicion ==
                         DisposicionProyecto::Actual;
}

void LeerSegunVersion(const XMLNode& novex, std::string_view nombre, Edificio& edificio,
                      Mensajes& mensajes, ProyectoAbierto& salida) {
  InformeLectura informe;
  if (!LeerCaso(novex, edificio, mensajes, &informe)) salida.casosSinUso.push_back(nombre);
  salida.informe.Juntar(informe, NombreMostrado(nombre) + ": ");
  salida.casos.push_back(nombre);
}

void AvisarDemasiados(Mensajes& mensajes) {
  mensajes.Avisar("No se abre ningún fichero nuevo", "El nº total de edificios sería mayor de 6");
}

// Las dos imágenes son del proyecto: todos los casos llevan las de la base, o las primeras que
// haya.
void CompartirImagenes(GestorEdifActivo& gestor) {
  std::vector<Edificio*> casos;
  for (std::size_t i = 0; i < gestor.NumeroCasos(); ++i)
    if (Edificio* caso = gestor.Caso(GestorEdifActivo::NombreCasoUsuario(i))) casos.push_back(caso);
  for (auto imagen : {&DatosPantalla::Imagen, &DatosPantalla::Plano}) {
    const auto conImagen = std::find_if(casos.begin(), casos.end(), [imagen](const Edificio* e) {
      return e->GetDatosPantalla().*imagen != nullptr;
    });
    if (conImagen == casos.end()) continue;
    const auto comun = (*conImagen)->GetDatosPantalla().*imagen;
    for (Edificio* caso : casos) {
      DatosPantalla pantalla = caso->GetDatosPantalla();
      pantalla.*imagen = comun;
      caso->SetDatosPantalla(std::move(pantalla));
    }
  }
}

// Quita los casos añadidos y vuelve al activo si la lectura no llega a su fin.
class Anadidos {
 public:
  explicit Anadidos(GestorEdifActivo& gestor) : gestor_(gestor), activo_(gestor.NombreActivo()) {}
  Anadidos(const Anadidos&) = delete;
  Anadidos& operator=(const Anadidos&) = delete;
  ~Anadidos() {
    if (confirmados_) return;
    for (auto it = nombres_.rbegin(); it != nombres_.rend(); ++it) gestor_.EliminarCaso(*it);
    gestor_.ActivarCaso(activo_);
  }
  void Crear(std::string_view nombre) {
    gestor_.CrearCasoVacio(nombre);
    nombres_.push_back(nombre);
  }
  void Confirmar() { confirmados_ = true; }

 private:
  GestorEdifActivo& gestor_;
  std::string_view activo_;
  std::vector<std::string_view> nombres_;
  bool confirmados_ = false;
};

// Pone los casos en las mejoras libres; los que no tienen sitio no se leen.
ProyectoAbierto Anadir(GestorEdifActivo& gestor, const std::vector<XMLNode>& casos,
                       Mensajes& mensajes) {
  ProyectoAbierto salida;
  Anadidos anadidos(gestor);
  for (const XMLNode& novex : casos) {
    const std::string_view libre = gestor.PrimeraMejoraLibre();
    if (libre.empty()) {
      AvisarDemasiados(mensajes);
      break;
    }
    anadidos.Crear(libre);
    LeerSegunVersion(novex, libre, gestor.Activo(), mensajes, salida);
  }
  anadidos.Confirmar();
  CompartirImagenes(gestor);
  salida.abierto = !salida.casos.empty();
  return salida;
}

ProyectoAbierto Sustituir(GestorEdifActivo& gestor, const std::vector<XMLNode>& casos,
                          Mensajes& mensajes) {
  ProyectoAbierto salida;
  GestorEdifActivo nuevo;
  nuevo.NuevoProyecto();
  for (std::size_t i = 0; i < casos.size(); ++i) {
    const std::string_view nombre = GestorEdifActivo::NombreCasoUsuario(i);
    if (i > 0) nuevo.CrearCasoVacio(nombre);
    LeerSegunVersion(casos[i], nombre, nuevo.Activo(), mensajes, salida);
  }
  CompartirImagenes(nuevo);
  gestor = std::move(nuevo);
  salida.abierto = true;
  return salida;
}

std::vector<XMLNode> CasosDelFichero(const std::filesystem::path& ruta,
                                     ModoCodificacion& codificacion) {
  const XMLNode personalizados = XMLNode::loadFile(ruta, kRaiz, codificacion).childNamed(kCasos);
  std::vector<XMLNode> casos;
  std::size_t i = 0;
  while (const XMLNode novex = personalizados.childNamed(kCaso, &i)) casos.push_back(novex);
  if (casos.empty())
    throw ErrorFichero(ruta.string(), 0, 0, 0,
                       "El fichero no contiene ningún edificio: \"" + ruta.string() + "\"");
  return casos;
}

ProyectoAbierto AbrirXml(GestorEdifActivo& gestor, const std::filesystem::path& ruta,
                         ModoApertura modo, Mensajes& mensajes, ModoCodificacion& codificacion) {
  std::vector<XMLNode> casos = CasosDelFichero(ruta, codificacion);
  if (!EsDeVariosCasos(casos.front())) {
    casos.resize(1);
    std::error_code error;
    if (const auto mejoras = RutaDeMejoras(ruta);
        std::filesystem::is_regular_file(mejoras, error)) {
      ModoCodificacion deMejoras = codificacion;
      for (XMLNode& mejora : CasosDelFichero(mejoras, deMejoras))
        casos.push_back(std::move(mejora));
    }
  }
  const std::size_t abiertos = modo == ModoApertura::Nuevo ? 1 : gestor.NumeroCasos();
  if (abiertos + casos.size() > kMaximoRecuento) {
    AvisarDemasiados(mensajes);
    return {};
  }
  return modo == ModoApertura::Nuevo ? Sustituir(gestor, casos, mensajes)
                                     : Anadir(gestor, casos, mensajes);
}

void LeerDeTexto(FicheroTexto& fichero, std::string_view nombre, Edificio& edificio,
                 Mensajes& mensajes, ProyectoAbierto& salida) {
  salida.casosDeTexto.push_back(fichero.LeerCaso(edificio, nombre, mensajes, salida.informe));
  salida.casos.push_back(nombre);
  salida.casosSinUso.push_back(nombre);
}

// Pone los casos que quedan en las mejoras libres; los que no tienen sitio no se leen.
void AnadirDeTexto(FicheroTexto& fichero, GestorEdifActivo& gestor, Mensajes& mensajes,
                   ProyectoAbierto& salida) {
  Anadidos anadidos(gestor);
  while (fichero.QuedaCaso()) {
    const std::string_view libre = gestor.PrimeraMejoraLibre();
    if (libre.empty()) {
      AvisarDemasiados(mensajes);
      break;
    }
    anadidos.Crear(libre);
    LeerDeTexto(fichero, libre, gestor.Activo(), mensajes, salida);
  }
  anadidos.Confirmar();
}

ProyectoAbierto AbrirTexto(GestorEdifActivo& gestor, const std::filesystem::path& ruta,
                           ModoApertura modo, Mensajes& mensajes, ModoCodificacion& codificacion) {
  mensajes.Avisar(kAvisoFicheroTexto.titulo, kAvisoFicheroTexto.texto);
  FicheroTexto fichero(ruta);
  ProyectoAbierto salida;
  if (modo == ModoApertura::Anadir) {
    AnadirDeTexto(fichero, gestor, mensajes, salida);
    CompartirImagenes(gestor);
  } else {
    GestorEdifActivo nuevo;
    nuevo.NuevoProyecto();
    LeerDeTexto(fichero, caso::kViejo, nuevo.Activo(), mensajes, salida);
    AnadirDeTexto(fichero, nuevo, mensajes, salida);
    gestor = std::move(nuevo);
  }
  salida.abierto = !salida.casos.empty();
  codificacion = {};
  return salida;
}

}  // namespace

ProyectoAbierto AbrirProyecto(GestorEdifActivo& gestor, const std::filesystem::path& ruta,
                              ModoApertura modo, Mensajes& mensajes,
                              ModoCodificacion& codificacion) {
  const Formato formato = FormatoDe(ruta);
  if (formato == Formato::Ninguno) return {};
  try {
    MensajesAcotados acotados(mensajes);
    const auto abrir = formato == Formato::Texto ? AbrirTexto : AbrirXml;
    ProyectoAbierto abierto = abrir(gestor, ruta, modo, acotados, codificacion);
    acotados.Terminar();
    return abierto;
  } catch (const ErrorFichero& error) {
    if (!error.ruta.empty()) throw;
    // Los límites de las secciones no conocen el fichero que se lee.
    throw ErrorFichero(ruta.string(), error.codigo, error.linea, error.columna,
                       std::string(error.what()) + ": \"" + ruta.string() + "\"");
  }
}

ProyectoAbierto AbrirProyecto(GestorEdifActivo& gestor, const std::filesystem::path& ruta,
                              ModoApertura modo, Mensajes& mensajes) {
  ModoCodificacion propia;
  return AbrirProyecto(gestor, ruta, modo, mensajes, propia);
}

std::filesystem::path RutaDeGuardado(const std::filesystem::path& elegida) {
  const std::string nombre = elegida.filename().string();
  std::string minusculas = nombre;
  std::transform(minusculas.begin(), minusculas.end(), minusculas.begin(),
                 [](unsigned char c) { return static_cast<char>(c < 0x80 ? std::tolower(c) : c); });
  std::size_t corte = nombre.size();
  for (const char* fin : {".txt", ".xml"}) {
    const std::size_t donde = minusculas.rfind(fin);
    if (donde != std::string::npos && (corte == nombre.size() || donde > corte)) corte = donde;
  }
  return elegida.parent_path() / (nombre.substr(0, corte) + ".xml");
}

std::filesystem::path GuardarProyecto(const GestorEdifActivo& gestor,
                                      const std::filesystem::path& ruta,
                                      const DatosDerivados& derivados,
                                      const ModoCodificacion& codificacion) {
  XMLNode cima = XMLNode::createTop(kDeclaracion);
  XMLNode casos = cima.appendChild(kRaiz).appendChild(kCasos);
  for (std::size_t i = 0; i < gestor.NumeroCasos(); ++i) {
    const Edificio* edificio = gestor.Caso(GestorEdifActivo::NombreCasoUsuario(i));
    if (edificio == nullptr) continue;
    const bool hay = i < derivados.casos.size();
    EscribirCaso(casos, *edificio, i == 0, hay ? derivados.casos[i] : DatosDerivados::Caso{});
  }
  const std::filesystem::path destino = RutaDeGuardado(ruta);
  const int codigo = cima.saveToFile(destino, {}, true, codificacion);
  if (codigo != codigoXml::kSinError)
    throw ErrorFichero(destino.string(), codigo, 0, 0,
                       std::string(TextoErrorXml(codigo)) + ": \"" + destino.string() + "\"");
  return destino;
}

}  // namespace novex
