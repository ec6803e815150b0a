#include "files/AccesoCampos.h"

#include <algorithm>
#include <map>

#include "files/SeccionesProyecto.h"
#include "model/CatalogoCampos.h"
#include "model/ClavesCampos.h"

namespace novex {
namespace {

constexpr std::string_view kHueco = "Hueco";
constexpr std::string_view kSistema = "Tipo_sistema";
constexpr std::string_view kTipologia = "Tipologia";

// Un campo de los registros del caso con su lugar.
struct Entrada {
  const Campo<RegistrosCaso>* campo;
  Indice donde;
};

std::string Prefijo(std::string_view elemento, std::size_t numero) {
  return std::string(elemento) + "[" + std::to_string(numero) + "]/";
}

struct Indices {
  std::map<std::string, Entrada, std::less<>> porDireccion;
  std::vector<std::string> orden;
};

// Dos campos con la misma etiqueta guardan lo mismo: vale el primero.
const Indices& CamposDelCaso() {
  static const Indices indices = [] {
    std::vector<TablaCampos> tablas;
    for (const auto anadir : {AnadirTablasGenerales, AnadirTablasDefinicion, AnadirTablasUso,
                              AnadirTablasGlobales, AnadirTablasPuentes, AnadirTablasCubiertas,
                              AnadirTablasMuros, AnadirTablasSuelos, AnadirTablasInstalaciones})
      anadir(tablas);
    Indices hechos;
    for (const TablaCampos& tabla : tablas)
      for (std::size_t tipo = 0; tipo < tabla.tipos; ++tipo)
        for (const auto& campo : tabla.campos) {
          if (campo.soloEscritura) continue;
          for (std::size_t s = 0; s < campo.sectores; ++s) {
            const Indice donde{tipo, campo.primerSector + s};
            std::string direccion =
                tabla.elemento.empty() ? std::string() : Prefijo(tabla.elemento, tipo + 1);
            direccion += camposFichero::Etiqueta(campo.etiqueta, donde);
            if (hechos.porDireccion.emplace(direccion, Entrada{&campo, donde}).second)
              hechos.orden.push_back(std::move(direccion));
          }
        }
    return hechos;
  }();
  return indices;
}

// Una dirección de un elemento de una lista: "Hueco[2]/Ancho_m".
struct EnLista {
  std::string_view elemento, etiqueta;
  std::size_t indice = 0;  // desde 0
};

std::optional<EnLista> LeerEnLista(std::string_view direccion) {
  const std::size_t abre = direccion.find('['), barra = direccion.find("]/");
  if (abre == std::string_view::npos || barra == std::string_view::npos || barra < abre)
    return std::nullopt;
  const long numero = EnteroInicial(direccion.substr(abre + 1, barra - abre - 1));
  if (numero < 1) return std::nullopt;
  return EnLista{direccion.substr(0, abre), direccion.substr(barra + 2),
                 static_cast<std::size_t>(numero - 1)};
}

template <class Registro>
const Campo<Registro>* BuscarEtiqueta(std::span<const Campo<Registro>> campos,
                                      std::string_view etiqueta) {
  const auto it = std::find_if(campos.begin(), campos.end(), [&](const Campo<Registro>& c) {
    return !c.soloEscritura && c.etiqueta == etiqueta;
  });
  return it == campos.end() ? nullptr : &*it;
}

// El campo de columna de huecos de una etiqueta; nulo si no lo es.
const CampoColumna* BuscarColumna(std::string_view etiqueta) {
  const auto& campos = CamposDeColumnas();
  const auto it = std::find_if(campos.begin(), campos.end(),
                               [&](const CampoColumna& c) { return c.etiqueta == etiqueta; });
  return it == campos.end() ? nullptr : &*it;
}

// El campo de columna de una dirección, si el caso tiene su grupo.
const CampoColumna* ColumnaDe(const Edificio& edificio, const EnLista& d) {
  const bool esta = d.elemento == kHueco && d.indice < edificio.NumeroHuecos();
  return esta ? BuscarColumna(d.etiqueta) : nullptr;
}

DatosCampo DatosDe(const CampoColumna& campo) {
  DatosCampo datos;
  datos.etiqueta = campo.etiqueta;
  const bool esNumero = campo.medida == nullptr;
  datos.clase = esNumero ? ClaseCampo::Entero : ClaseCampo::Real;
  datos.decimales = esNumero ? 0 : kDecimalesHueco;
  return datos;
}

void PonerEnColumna(const CampoColumna& campo, Huecos& grupo, std::string_view texto,
                    Mensajes& mensajes) {
  const float valor = ComprobarValor(texto, ClaveDeCampo(campo.etiqueta), mensajes);
  if (float* medida = campo.Medida(grupo))
    *medida = valor;
  else
    grupo.columnas[campo.columna].PonerNumero(static_cast<std::size_t>(valor));
}

// El sistema y el bloque que ocupan una posición, contados como los escribe el fichero.
template <class E>
auto BloqueEn(E& edificio, std::size_t indice)
    -> std::pair<decltype(&edificio.GetSistema(0)),
                 decltype(&edificio.GetSistema(0).instalaciones[0])> {
  for (std::size_t n = 0; n < edificio.NumeroSistemas(); ++n) {
    auto& sistema = edificio.GetSistema(n);
    if (indice < sistema.instalaciones.size()) return {&sistema, &sistema.instalaciones[indice]};
    indice -= sistema.instalaciones.size();
  }
  return {nullptr, nullptr};
}

// Llama con el campo y el registro de una dirección de lista; nada si no existe.
template <class Registro, class Puntero, class Uso>
bool EnCampo(std::span<const Campo<Registro>> campos, std::string_view etiqueta, Puntero registro,
             Uso uso) {
  const Campo<Registro>* campo = BuscarEtiqueta(campos, etiqueta);
  if (campo == nullptr || registro == nullptr) return false;
  uso(*campo, *registro);
  return true;
}

template <class E, class Uso>
bool EnListaDe(E& edificio, const EnLista& d, Uso uso) {
  if (d.elemento == kHueco) {
    if (d.indice >= edificio.NumeroHuecos()) return false;
    return EnCampo(CamposDeHuecos(), d.etiqueta, &edificio.GetHuecos(d.indice), uso);
  }
  if (d.elemento != kSistema) return false;
  const auto [sistema, bloque] = BloqueEn(edificio, d.indice);
  return EnCampo(CamposDeGenerador(), d.etiqueta, bloque, uso) ||
         EnCampo(CamposDeSistema(), d.etiqueta, sistema, uso);
}

template <class Registro>
DatosCampo DatosDe(const Campo<Registro>& campo, std::string etiqueta) {
  DatosCampo datos;
  datos.etiqueta = std::move(etiqueta);
  datos.decimales = campo.decimales;
  datos.lista = campo.lista;
  if (!campo.lista.empty())
    datos.clase = ClaseCampo::Lista;
  else
    datos.clase = static_cast<ClaseCampo>(campo.acceso.index());
  return datos;
}

// Un número tecleado, ya comprobado, con decimales de sobra para no perder nada.
std::string TextoComprobado(const DatosCampo& campo, std::string_view texto, Mensajes& mensajes) {
  if (campo.clase != ClaseCampo::Real && campo.clase != ClaseCampo::Entero)
    return std::string(texto);
  constexpr int kDecimales = 6;
  const std::string_view clave = ClaveDeCampo(campo.etiqueta);
  const float valor =
      clave.empty() ? ValorSinComprobar(texto, mensajes) : ComprobarValor(texto, clave, mensajes);
  return Fijo(static_cast<double>(valor), campo.clase == ClaseCampo::Entero ? 0 : kDecimales);
}

template <class Registro>
bool Poner(const Campo<Registro>& campo, Registro& registro, Indice donde, std::string etiqueta,
           std::string_view texto, Mensajes& mensajes) {
  const DatosCampo datos = DatosDe(campo, std::move(etiqueta));
  if (datos.clase == ClaseCampo::Lista && !camposFichero::LeerPosicion(texto, datos.lista))
    return false;
  const auto textos = TextosDeCampo(datos.etiqueta);
  if (datos.clase == ClaseCampo::Texto && !textos.empty() &&
      std::find(textos.begin(), textos.end(), texto) == textos.end())
    return false;
  const std::string comprobado = TextoComprobado(datos, texto, mensajes);
  camposFichero::LeerCampo(campo, registro, donde, datos.etiqueta, comprobado, mensajes);
  return true;
}

}  // namespace

std::optional<DatosCampo> BuscarDatosCampo(std::string_view direccion) {
  const auto& campos = CamposDelCaso().porDireccion;
  if (const auto it = campos.find(direccion); it != campos.end())
    return DatosDe(*it->second.campo,
                   camposFichero::Etiqueta(it->second.campo->etiqueta, it->second.donde));
  const auto d = LeerEnLista(direccion);
  if (!d) return std::nullopt;
  const auto de = [&](auto lista) -> std::optional<DatosCampo> {
    const auto* campo = BuscarEtiqueta(lista, d->etiqueta);
    if (campo == nullptr) return std::nullopt;
    return DatosDe(*campo, std::string(d->etiqueta));
  };
  if (d->elemento == kHueco) {
    if (const CampoColumna* columna = BuscarColumna(d->etiqueta)) return DatosDe(*columna);
    return de(CamposDeHuecos());
  }
  if (d->elemento == kTipologia) return de(CamposDeTipologia());
  if (d->elemento != kSistema) return std::nullopt;
  const auto generador = de(CamposDeGenerador());
  return generador ? generador : de(CamposDeSistema());
}

std::vector<std::string> DireccionesDeCampos(const Edificio& edificio) {
  std::vector<std::string> direcciones = CamposDelCaso().orden;
  const auto anadir = [&](std::string_view elemento, std::size_t cuantos, auto campos) {
    for (std::size_t i = 1; i <= cuantos; ++i)
      for (const auto& campo : campos)
        if (!campo.soloEscritura)
          direcciones.push_back(Prefijo(elemento, i) + std::string(campo.etiqueta));
  };
  anadir(kTipologia, kTipologias, CamposDeTipologia());
  anadir(kHueco, edificio.NumeroHuecos(), CamposDeHuecos());
  for (std::size_t i = 1; i <= edificio.NumeroHuecos(); ++i)
    for (const CampoColumna& campo : CamposDeColumnas())
      direcciones.push_back(Prefijo(kHueco, i) + campo.etiqueta);
  std::size_t bloques = 0;
  for (std::size_t n = 0; n < edificio.NumeroSistemas(); ++n)
    bloques += edificio.GetSistema(n).instalaciones.size();
  anadir(kSistema, bloques, CamposDeSistema());
  anadir(kSistema, bloques, CamposDeGenerador());
  return direcciones;
}

LectorCampos::LectorCampos(const Edificio& edificio)
    : edificio_(edificio), registros_(std::make_unique<RegistrosCaso>(SacarRegistros(edificio))) {}

LectorCampos::~LectorCampos() = default;

std::optional<std::string> LectorCampos::Valor(std::string_view direccion) {
  const auto& campos = CamposDelCaso().porDireccion;
  if (const auto it = campos.find(direccion); it != campos.end())
    return camposFichero::TextoDeCampo(*it->second.campo, *registros_, it->second.donde);
  const auto d = LeerEnLista(direccion);
  if (!d) return std::nullopt;
  std::optional<std::string> valor;
  // El acceso de una tabla da el valor para cambiarlo: se lee de una copia.
  const auto leer = [&](const auto& campo, auto registro) {
    valor = camposFichero::TextoDeCampo(campo, registro, {});
  };
  if (d->elemento == kTipologia) {
    if (d->indice < kTipologias)
      EnCampo(CamposDeTipologia(), d->etiqueta, &registros_->ventilacion.tipologias[d->indice],
              leer);
    return valor;
  }
  if (const CampoColumna* columna = ColumnaDe(edificio_, *d)) {
    Huecos copia = edificio_.GetHuecos(d->indice);
    return TextoDeColumna(*columna, copia);
  }
  EnListaDe(edificio_, *d, leer);
  return valor;
}

bool PonerCampo(Edificio& edificio, std::string_view direccion, std::string_view texto,
                Mensajes& mensajes) {
  const auto& campos = CamposDelCaso().porDireccion;
  const auto it = campos.find(direccion);
  const auto d = LeerEnLista(direccion);
  bool puesto = false;
  if (it != campos.end()) {
    RegistrosCaso r = SacarRegistros(edificio);
    const auto& [campo, donde] = it->second;
    puesto =
        Poner(*campo, r, donde, camposFichero::Etiqueta(campo->etiqueta, donde), texto, mensajes);
    if (puesto) GuardarRegistros(std::move(r), edificio);
    return puesto;
  }
  if (!d) return false;
  const auto poner = [&](const auto& campo, auto& registro) {
    puesto = Poner(campo, registro, {}, std::string(d->etiqueta), texto, mensajes);
  };
  if (d->elemento == kTipologia) {
    Ventilacion v = edificio.GetVentilacion();
    if (d->indice < kTipologias)
      EnCampo(CamposDeTipologia(), d->etiqueta, &v.tipologias[d->indice], poner);
    if (puesto) edificio.SetVentilacion(std::move(v));
    return puesto;
  }
  if (const CampoColumna* columna = ColumnaDe(edificio, *d)) {
    PonerEnColumna(*columna, edificio.GetHuecos(d->indice), texto, mensajes);
    return true;
  }
  EnListaDe(edificio, *d, poner);
  return puesto;
}

}  // namespace novex
