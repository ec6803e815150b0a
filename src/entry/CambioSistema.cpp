#include "entry/CambioSistema.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "entry/BloqueSistema.h"
#include "entry/CamposSistema.h"
#include "entry/CreacionSistema.h"
#include "entry/DimensionadoSistema.h"
#include "entry/ListasSistemas.h"
#include "entry/RellenoSistema.h"
#include "files/AccesoCampos.h"

namespace novex {
namespace {

using I = Instalaciones;
using Texto = std::string_view;

// Campos tras los que se rellena el sistema.
constexpr std::array<Texto, 8> kPotencias = {"QcalorCaldera1", "QcalorCaldera2",   "QcalorBC1",
                                             "QFrioTot1",      "QApoyoEquipo",     "QApoyoTermo",
                                             "NEmisores",      "RadiadorElectrico"};

// Los tamaños que da el dimensionado.
struct Tamano {
  Texto etiqueta;
  float& (*valor)(I&);
};
constexpr std::array kTamanos = std::to_array<Tamano>({
    {"QcalorCaldera1", [](I& b) -> float& { return b.QcalorCaldera1; }},
    {"QcalorBC1", [](I& b) -> float& { return b.QcalorBC1; }},
    {"WeCalor1", [](I& b) -> float& { return b.WeCalor1; }},
    {"QFrioTot1", [](I& b) -> float& { return b.QFrioTot1; }},
    {"QFrioSen1", [](I& b) -> float& { return b.QFrioSen1; }},
    {"WeFrio1", [](I& b) -> float& { return b.WeFrio1; }},
    {"QcalorCaldera2", [](I& b) -> float& { return b.QcalorCaldera2; }},
    {"QApoyoEquipo", [](I& b) -> float& { return b.QApoyoEquipo; }},
    {"Volumen", [](I& b) -> float& { return b.Volumen; }},
    {"UA_deposito", [](I& b) -> float& { return b.UA_deposito; }},
    {"LD_deposito", [](I& b) -> float& { return b.LD_deposito; }},
    {"AintermbD", [](I& b) -> float& { return b.AintermbD; }},
    {"AintermbD2", [](I& b) -> float& { return b.AintermbD2; }},
    {"Long_tuberias", [](I& b) -> float& { return b.Long_tuberias; }},
    {"CaudalSBZ", [](I& b) -> float& { return b.SBZ.Caudal; }},
    {"PSBZ", [](I& b) -> float& { return b.SBZ.P; }},
    {"CaudalGEN1", [](I& b) -> float& { return b.GEN1.Caudal; }},
    {"CaudalGEN2", [](I& b) -> float& { return b.GEN2.Caudal; }},
    {"CaudalDEP", [](I& b) -> float& { return b.DEP.Caudal; }},
    {"CaudalINT", [](I& b) -> float& { return b.INT.Caudal; }},
    {"CaudalRET", [](I& b) -> float& { return b.RET.Caudal; }},
    {"CaudalVent", [](I& b) -> float& { return b.CaudalVent; }},
});
constexpr Texto kUnidades = "NEquipos";

// Con dos decimales, que es lo que se guarda y se lee.
bool Distintos(float a, float b) {
  return std::lround(a * 100.0F) != std::lround(b * 100.0F);
}

// El bloque con los tamaños de uno nuevo y, en los caudales, sus propios saltos y emisores.
I Dimensionado(const Edificio& edificio, const SistemaResidencial& sistema, const I& bloque) {
  I nuevo = bloque;
  DimensionarBloque(edificio, sistema.Tipo_sistema, nuevo);
  I medido = bloque;
  medido.NEquipos = nuevo.NEquipos;
  for (const Tamano& t : kTamanos) t.valor(medido) = t.valor(nuevo);
  const TipoSistema tipo = TipoSistemaDe(sistema.Tipo_sistema);
  const double kW = PotenciaDimensionado(tipo, CargasPuntaDe(edificio, bloque.TipoInstalacionesG));
  PonerCaudales(tipo, kW, kW, medido);
  medido.CaudalVent /= static_cast<float>(std::max(1, bloque.NEmisores));
  return medido;
}

bool EstaEntre(const std::vector<CampoMostrado>& campos, Texto etiqueta) {
  return std::any_of(campos.begin(), campos.end(),
                     [etiqueta](const CampoMostrado& c) { return c.etiqueta == etiqueta; });
}

void Ofrecer(std::string& valor, ListaTextos lista) {
  if (!lista.empty() && !EstaEn(lista, valor)) valor = lista.front();
}

// Deja el emisor, el lado del agua y la alimentación en algo que la clase admita.
void AjustarElecciones(const std::string& tipo, I& bloque) {
  Ofrecer(bloque.Emisor, EmisoresOfrecidos(tipo, bloque.Seleccion));
  Ofrecer(bloque.Distribucion, DistribucionesOfrecidas(tipo, bloque.Seleccion));
  Ofrecer(bloque.Distribucion2, Distribuciones2Ofrecidas(tipo, bloque.Seleccion));
  const AlimentacionOfrecida a = AlimentacionDeBloque(tipo, bloque);
  if (a.campo != nullptr) Ofrecer(bloque.*a.campo, a.valores);
}

// El aviso de una clase que no cabe junto a los demás sistemas del caso.
std::optional<Mensaje> Rechazo(const Edificio& edificio, std::size_t cual, Texto seleccion,
                               Texto tipologia) {
  const SistemaResidencial& sistema = edificio.GetSistema(cual);
  if (!EstaEn(ClasesOfrecidas(sistema.Tipo_sistema, tipologia), seleccion))
    return Mensaje{"AVISO", "No se ofrece \"" + std::string(seleccion) + "\" para " +
                                std::string(RotuloServicio(sistema.Tipo_sistema)) +
                                ", instalación " + std::string(tipologia)};
  // El sistema de los tres servicios no se crea, así que no tiene reglas de creación.
  if (TipoSistemaDe(sistema.Tipo_sistema) == TipoSistema::Todo) return std::nullopt;
  const auto demas = edificio.Clonar();
  demas->BorrarSistema(cual);
  PeticionSistema peticion;
  peticion.tipoSistema = sistema.Tipo_sistema;
  peticion.seleccion = seleccion;
  peticion.tipologia = tipologia;
  peticion.superficie = 1.0F;
  return RechazoSistema(*demas, peticion);
}

bool CambiarClase(Edificio& edificio, LugarBloque lugar, std::string seleccion,
                  std::string tipologia, const CatalogoEquipos* catalogo, Mensajes& mensajes) {
  const I& actual = edificio.GetSistema(lugar.sistema).instalaciones[lugar.bloque];
  if (actual.Seleccion == seleccion && actual.TipoInstalacionesG == tipologia) return true;
  if (const auto rechazo = Rechazo(edificio, lugar.sistema, seleccion, tipologia)) {
    mensajes.Avisar(rechazo->titulo, rechazo->texto);
    return false;
  }
  SistemaResidencial& sistema = edificio.GetSistema(lugar.sistema);
  I& bloque = sistema.instalaciones[lugar.bloque];
  const bool otraClase = bloque.Seleccion != seleccion;
  bloque.Seleccion = std::move(seleccion);
  bloque.TipoInstalacionesG = std::move(tipologia);
  AjustarElecciones(sistema.Tipo_sistema, bloque);
  if (otraClase && catalogo != nullptr) PonerModeloGenerico(*catalogo, bloque);
  RellenarSistema(edificio, sistema, mensajes);
  return true;
}

}  // namespace

std::optional<LugarBloque> LugarDeBloque(const Edificio& edificio, std::size_t numero) {
  if (numero == 0) return std::nullopt;
  std::size_t indice = numero - 1;
  for (std::size_t s = 0; s < edificio.NumeroSistemas(); ++s) {
    const std::size_t bloques = edificio.GetSistema(s).instalaciones.size();
    if (indice < bloques) return LugarBloque{s, indice};
    indice -= bloques;
  }
  return std::nullopt;
}

std::size_t NumeroDeBloque(const Edificio& edificio, std::size_t sistema) {
  std::size_t numero = 1;
  for (std::size_t s = 0; s < sistema; ++s) numero += edificio.GetSistema(s).instalaciones.size();
  return numero;
}

bool PonerCampoSistema(Edificio& edificio, std::size_t numero, std::string_view etiqueta,
                       std::string_view texto, const CatalogoEquipos* catalogo,
                       Mensajes& mensajes) {
  const auto lugar = LugarDeBloque(edificio, numero);
  if (!lugar) return false;
  SistemaResidencial& sistema = edificio.GetSistema(lugar->sistema);
  I& bloque = sistema.instalaciones[lugar->bloque];
  if (etiqueta == "Seleccion")
    return CambiarClase(edificio, *lugar, std::string(texto), bloque.TipoInstalacionesG, catalogo,
                        mensajes);
  if (etiqueta == "TipoInstalacionesG")
    return CambiarClase(edificio, *lugar, bloque.Seleccion, std::string(texto), catalogo, mensajes);
  const std::string direccion =
      "Tipo_sistema[" + std::to_string(numero) + "]/" + std::string(etiqueta);
  // Lo que ya tiene no se comprueba: un tamaño que ha puesto el programa puede no ser de los que se
  // teclean, como una altura de bomba con decimales.
  if (LectorCampos(edificio).Valor(direccion) == texto) return true;
  if (!PonerCampo(edificio, direccion, texto, mensajes)) return false;
  if (EstaEn(kPotencias, etiqueta)) RellenarSistema(edificio, sistema, mensajes);
  if (etiqueta == "Distribucion" || etiqueta == "Distribucion2")
    AjustarElecciones(sistema.Tipo_sistema, bloque);
  const bool generica = bloque.Fabricante == kFabricanteDefecto &&
                        TipoDeCatalogo(bloque.Seleccion).familia == "Generadores";
  if (etiqueta == "TipoGenerador1" && generica && catalogo != nullptr)
    PonerModeloGenerico(*catalogo, bloque);
  return true;
}

bool AdmiteServicios(const Edificio& edificio, std::size_t cual, std::string_view tipoSistema) {
  const auto& bloques = edificio.GetSistema(cual).instalaciones;
  return std::all_of(bloques.begin(), bloques.end(), [tipoSistema](const I& bloque) {
    return EstaEn(ClasesOfrecidas(tipoSistema, bloque.TipoInstalacionesG), bloque.Seleccion);
  });
}

bool CambiarServicios(Edificio& edificio, std::size_t cual, std::string_view tipoSistema) {
  if (!AdmiteServicios(edificio, cual, tipoSistema)) return false;
  SistemaResidencial& sistema = edificio.GetSistema(cual);
  const std::string antes = std::exchange(sistema.Tipo_sistema, std::string(tipoSistema));
  for (I& bloque : sistema.instalaciones) {
    const AlimentacionOfrecida tenia = AlimentacionDeBloque(antes, bloque);
    const std::string alimentacion = tenia.campo != nullptr ? bloque.*tenia.campo : std::string();
    AjustarElecciones(sistema.Tipo_sistema, bloque);
    const AlimentacionOfrecida tiene = AlimentacionDeBloque(sistema.Tipo_sistema, bloque);
    if (tiene.campo != nullptr && EstaEn(tiene.valores, alimentacion))
      bloque.*tiene.campo = alimentacion;
  }
  const TipoSistema tipo = TipoSistemaDe(tipoSistema);
  if (!DaACS(tipo)) sistema.Sup_ACS = 0;
  if (!DaCalefaccion(tipo)) sistema.Sup_Calefaccion = 0;
  if (!DaRefrigeracion(tipo)) sistema.Sup_Refrigeracion = 0;
  return true;
}

bool PonerCurvas(const CurvasEquipo& curvas, Instalaciones& bloque) {
  if (bloque.curvas == curvas) return false;
  bloque.curvas = curvas;
  if (bloque.Fabricante == kFabricanteDefecto) bloque.Fabricante.clear();
  bloque.Modelo.clear();
  return true;
}

std::vector<CambioTamano> CambiosDimensionado(const Edificio& edificio, std::size_t numero) {
  std::vector<CambioTamano> cambios;
  const auto lugar = LugarDeBloque(edificio, numero);
  if (!lugar) return cambios;
  const SistemaResidencial& sistema = edificio.GetSistema(lugar->sistema);
  I antes = sistema.instalaciones[lugar->bloque];
  I despues = Dimensionado(edificio, sistema, antes);
  const auto campos = CamposMostrados(edificio, sistema, antes);
  const auto anadir = [&](Texto etiqueta, float a, float d) {
    if (EstaEntre(campos, etiqueta) && Distintos(a, d)) cambios.push_back({etiqueta, a, d});
  };
  for (const Tamano& t : kTamanos) anadir(t.etiqueta, t.valor(antes), t.valor(despues));
  anadir(kUnidades, static_cast<float>(antes.NEquipos), static_cast<float>(despues.NEquipos));
  return cambios;
}

void AplicarDimensionado(Edificio& edificio, std::size_t numero,
                         const std::vector<std::string>& etiquetas) {
  const auto lugar = LugarDeBloque(edificio, numero);
  if (!lugar) return;
  SistemaResidencial& sistema = edificio.GetSistema(lugar->sistema);
  I& bloque = sistema.instalaciones[lugar->bloque];
  I nuevo = Dimensionado(edificio, sistema, bloque);
  const auto elegida = [&](Texto e) {
    return std::find(etiquetas.begin(), etiquetas.end(), e) != etiquetas.end();
  };
  for (const Tamano& t : kTamanos)
    if (elegida(t.etiqueta)) t.valor(bloque) = t.valor(nuevo);
  if (elegida(kUnidades)) bloque.NEquipos = nuevo.NEquipos;
}

}  // namespace novex
