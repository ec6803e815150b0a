#include "calculation/ComprobacionesPrevias.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <span>

#include "demand/AjustesUso.h"
#include "systems/ArregloACS.h"
#include "systems/ClasesSistema.h"

namespace novex {
namespace {

using Lista = std::vector<MensajePrevio>;
using Pagina = PaginaProyecto;

constexpr const char* kSinACS = "Se debe definir una instalacion de ACS. No se calcula";
constexpr const char* kEscaparateVivienda =
    "Existe un hueco definido como escaparate en un edificio residencial. No se calcula";

// Usos de vivienda, en los valores de `PerfilUso`.
constexpr int kViviendaUnifamiliar = 0;
constexpr int kEdificiosEnBloque = 1;
constexpr int kViviendaEnBloque = 2;

// Límites de las relaciones de superficies y volumen.
constexpr double kMinimoUtilPorSuelo = 0.9;  // m2 útiles por m2 de suelo
constexpr double kMaximoUtilPorSuelo = 50;   // m2 útiles por m2 de suelo
constexpr double kMinimoVolumenPorUtil = 2;  // m
constexpr double kMaximoVolumenPorUtil = 5;  // m
// Las áreas están en simple precisión: a esta distancia relativa un cociente está en el límite.
constexpr double kIgual = 1e-6;

bool Menor(double a, double b) {
  return a < b * (1 - kIgual);
}

double Suma(float area) {
  return static_cast<double>(area);
}
template <std::size_t N>
double Suma(const std::array<float, N>& areas) {
  return std::accumulate(areas.begin(), areas.end(), 0.0);
}

template <class Valor>
double SumaRecintos(const Edificio& edificio, Valor valor) {
  double suma = 0;
  for (std::size_t i = 0; i < edificio.NumeroRecintos(); ++i) suma += valor(edificio.GetRecinto(i));
  return suma;
}

double SuperficieUtil(const Edificio& edificio) {
  return SumaRecintos(edificio, [](const Recinto& r) { return Suma(r.Suelo_habitable_m2); });
}

void ComprobarSuelos(const Edificio& edificio, Lista& lista) {
  const double suelos = SumaRecintos(edificio, [](const Recinto& r) {
    return Suma(r.Suelo_al_terreno_m2) + Suma(r.Suelo_ext_m2) + Suma(r.Suelo_otro_local_m2) +
           Suma(r.Suelo_vacio_sanitario_m2) + Suma(r.Suelo_adiabatico_m2);
  });
  if (suelos == 0) {
    lista.push_back(
        {"Faltan definir características de los suelos, (sino se quiere contabilizar "
         "intercambio de calor por ellos deben definirse como adiabáticos)",
         Pagina::Suelos});
    return;
  }
  const double relacion = SuperficieUtil(edificio) / suelos;
  if (Menor(relacion, kMinimoUtilPorSuelo))
    lista.push_back(
        {"Demasiado suelo definido en comparacion con el suelo habitable", Pagina::Suelos});
  if (Menor(kMaximoUtilPorSuelo, relacion))
    lista.push_back(
        {"Falta definir mayor superficie de suelos, (sino se quiere contabilizar "
         "intercambio de calor por parte ellos deben definirse como adiabáticos)",
         Pagina::Suelos});
}

void ComprobarVolumen(const Edificio& edificio, Lista& lista) {
  const double util = SuperficieUtil(edificio);
  if (util == 0) {
    lista.push_back({"Falta definir el suelo habitable", Pagina::Global, "Suelo_habitable_m2"});
    return;
  }
  const double relacion =
      SumaRecintos(edificio, [](const Recinto& r) { return Suma(r.Volumen_total_m3); }) / util;
  if (!Menor(kMinimoVolumenPorUtil, relacion))
    lista.push_back({"La relacion entre el volumen y el suelo habitable debe ser mayor de 2",
                     Pagina::Global, "Volumen_total_m3"});
  if (!Menor(relacion, kMaximoVolumenPorUtil))
    lista.push_back({"La relacion entre el volumen y el suelo habitable debe ser menor de 5",
                     Pagina::Global, "Volumen_total_m3"});
}

// Lo que suman los generadores de agua caliente de un caso.
struct CuentaACS {
  int generadores = 0;
  int individuales = 0;               // generadores de vivienda
  long long equiposIndividuales = 0;  // sus equipos
  std::array<long long, kTipologias> porTipologia{};
  bool algunoSinEquipos = false;
  bool solaresDistintos = false;
};

CuentaACS ContarACS(const Edificio& edificio) {
  CuentaACS cuenta;
  // El esquema solar lo da la alimentación de la fila del generador; sin captadores no hay.
  AlimentacionACS esquema = AlimentacionACS::Otra;
  for (std::size_t s = 0; s < edificio.NumeroSistemas(); ++s) {
    const SistemaResidencial& sistema = edificio.GetSistema(s);
    const TipoSistema tipo = TipoSistemaDe(sistema.Tipo_sistema);
    if (!DaACS(tipo)) continue;
    for (const Instalaciones& generador : sistema.instalaciones) {
      ++cuenta.generadores;
      cuenta.algunoSinEquipos |= generador.NEquipos <= 0;
      const ArregloACS arreglo = ResolverArreglo(tipo, generador);
      if (arreglo.captadores) {
        cuenta.solaresDistintos |=
            esquema != AlimentacionACS::Otra && esquema != arreglo.alimentacion;
        esquema = arreglo.alimentacion;
      }
      if (generador.TipoInstalacionesG != "Individual/Vivienda") continue;
      ++cuenta.individuales;
      cuenta.equiposIndividuales += generador.NEquipos;
      const auto tipologia = static_cast<std::size_t>(generador.Nradiadores);
      if (generador.Nradiadores >= 0 && tipologia < kTipologias)
        cuenta.porTipologia[tipologia] += generador.NEquipos;
    }
  }
  return cuenta;
}

void ComprobarACS(const Edificio& edificio, Lista& lista) {
  const CuentaACS cuenta = ContarACS(edificio);
  const int perfil = edificio.GetDatosGenerales().PerfilUso;
  const bool individualesEnBloque = perfil == kEdificiosEnBloque && cuenta.individuales > 0;
  long long viviendas = 0;
  bool tipologiasCubiertas = true;
  const auto& tipologias = edificio.GetVentilacion().tipologias;
  for (std::size_t i = 0; i < kTipologias; ++i) {
    viviendas += tipologias[i].N_viviendas;
    tipologiasCubiertas &= cuenta.porTipologia[i] == tipologias[i].N_viviendas;
  }
  const auto fallar = [&](const char* texto) { lista.push_back({texto, Pagina::Instalaciones}); };
  if (perfil == kViviendaUnifamiliar && cuenta.generadores > 1)
    fallar("No sepuede definir mas de una tipología de equipos de ACS en una vivienda unifamiliar");
  if (perfil == kViviendaEnBloque && cuenta.generadores > 1)
    fallar(
        "No sepuede definir mas de una tipología de equipos de ACS en una vivienda dentro de un "
        "bloque");
  if (individualesEnBloque && cuenta.equiposIndividuales != viviendas)
    fallar(
        "No coincide el nº de viviendas con el nº de instalaciones individuales de ACS. "
        "Rectificar");
  if (cuenta.solaresDistintos)
    fallar(
        "Todas las instalaciones de energía solar deben ser de la misma tipología. Sólo existe una "
        "y es centralizada");
  if (cuenta.algunoSinEquipos)
    fallar("El nº de equipos definido en cualquier sistema debe ser mayor de cero. Rectificar");
  if (individualesEnBloque && !tipologiasCubiertas)
    fallar(
        "El nº de equipos definido para cada tipología de vivienda no coincide con el nº de "
        "equipos definidos para esa tipología. Rectificar");
}

void ComprobarCoeficientes(const Edificio& edificio, Lista& lista) {
  // De las nueve clases de día solo las tres primeras son del perfil de uso; el resto, especiales.
  constexpr std::size_t kClasesCorrientes = 3;
  double suma = 0;
  for (const auto& familia : edificio.GetDatosGenerales().perfiles.tabla)
    for (std::size_t clase = 0; clase < kClasesCorrientes; ++clase)
      suma += std::accumulate(familia[clase].begin() + 1, familia[clase].end(), 0.0);
  if (!(suma > 0))
    lista.push_back(
        {"No existen coeficientes operacionales. Volver a seleccionar el Tipo de "
         "edificio en la pestaña global",
         Pagina::Global, "PerfilUso"});
}

// Los tipos de una clase de elemento, con lo que se dice de ellos.
struct TiposElemento {
  const char* frase;
  Pagina pagina;
  std::span<const ranura::Ranura> ranuras;           // una por tipo
  double (*area)(const Recinto&, std::size_t tipo);  // m2; el tipo, desde 0
  std::size_t primero = 0;
};

template <auto Campo>
double Area(const Recinto& recinto, std::size_t tipo) {
  return Suma((recinto.*Campo)[tipo]);
}

template <ranura::Ranura... R>
constexpr std::array kRanurasDe = {R...};

using enum ranura::Ranura;
constexpr std::array kElementos = std::to_array<TiposElemento>({
    {"de los muros exteriores", Pagina::Muros,
     kRanurasDe<MuroExt1, MuroExt2, MuroExt3, MuroExt4, MuroExt5>, Area<&Recinto::Muro_ext_m2>},
    {"del muro entre el local y el no hab.", Pagina::Muros, kRanurasDe<MuroOtro3, MuroOtro7>,
     Area<&Recinto::Muro_otro_local_m2>},
    {"del muro entre el local no hab. y el exterior", Pagina::Muros, kRanurasDe<MuroExt6, MuroExt7>,
     Area<&Recinto::Muro_otro_local_ext_m2>},
    {"del muro en contacto con el terreno", Pagina::Muros, kRanurasDe<MuroTerr1, MuroTerr2>,
     Area<&Recinto::Muro_al_terreno_m2>},
    {"del muro adiabático", Pagina::Muros, kRanurasDe<MuroOtro1, MuroOtro5>,
     Area<&Recinto::Muro_adiabatico_m2>},
    {"de la cubierta horizontal extrior", Pagina::Cubiertas, kRanurasDe<TechoExt1, TechoExt2>,
     Area<&Recinto::Cubierta_horiz_sol_m2>},
    {"de la cubierta horizontal exterior", Pagina::Cubiertas, kRanurasDe<TechoExt3>,
     Area<&Recinto::Cubierta_horiz_sol_m2>, 2},
    {"de la cubierta inclinada exterior", Pagina::Cubiertas, kRanurasDe<TechoInc1, TechoInc2>,
     Area<&Recinto::Cubierta_incl_m2>},
    {"de la cubierta entre el local y el no hab.", Pagina::Cubiertas,
     kRanurasDe<TechoVent1, TechoVent3>, Area<&Recinto::Cubierta_techo_ventilado_m2>},
    {"de la cubierta entre el local no hab. y el exterior", Pagina::Cubiertas,
     kRanurasDe<TechoVent2, TechoVent4>, Area<&Recinto::Cubierta_buhardilla_ext_m2>},
    {"de la cubierta en contacto con el terreno", Pagina::Cubiertas,
     kRanurasDe<TechoTerr1, TechoTerr2>, Area<&Recinto::Cubierta_terreno_m2>},
    {"de la cubierta adiabático", Pagina::Cubiertas, kRanurasDe<TechoOtro1, TechoOtro2>,
     Area<&Recinto::Cubierta_adiabatico_m2>},
    {"del suelo al terreno", Pagina::Suelos, kRanurasDe<SueloTerr1, SueloTerr2, SueloTerr3>,
     Area<&Recinto::Suelo_al_terreno_m2>},
    {"del suelo al exterior", Pagina::Suelos, kRanurasDe<SueloExt1, SueloExt2>,
     Area<&Recinto::Suelo_ext_m2>},
    {"del suelo entre el local y el no hab.", Pagina::Suelos, kRanurasDe<SueloVent1, SueloVent3>,
     Area<&Recinto::Suelo_otro_local_m2>},
    {"del suelo entre el local no hab. y el exterior", Pagina::Suelos,
     kRanurasDe<MuroExt8, MuroExt9>, Area<&Recinto::Suelo_otro_local_ext_m2>},
    {"del suelo a vacio sanitario", Pagina::Suelos, kRanurasDe<SueloOtro1, SueloOtro3>,
     Area<&Recinto::Suelo_vacio_sanitario_m2>},
    {"del suelo adiabático", Pagina::Suelos, kRanurasDe<SueloOtro2, SueloOtro4>,
     Area<&Recinto::Suelo_adiabatico_m2>},
});

void ComprobarTransmitancias(const Edificio& edificio, Lista& lista) {
  for (const TiposElemento& elemento : kElementos)
    for (std::size_t i = 0; i < elemento.ranuras.size(); ++i) {
      const std::size_t tipo = elemento.primero + i;
      const double area =
          SumaRecintos(edificio, [&](const Recinto& r) { return elemento.area(r, tipo); });
      if (!(area > 0) || edificio.GetComposicion(elemento.ranuras[i]).U != 0) continue;
      lista.push_back({std::string("Falta definir la composición ó el Coef. Global ") +
                           elemento.frase + " Tipo " + std::to_string(tipo + 1),
                       elemento.pagina,
                       {},
                       elemento.ranuras[i]});
    }
}

// Emisores que toman el aire de un sistema de ventilación del edificio.
bool NecesitaVentilacion(std::string_view emisor) {
  return EmisorDeVentilacion(emisor) || emisor == "Radiadores + Sist.Vent." ||
         emisor == "Fancoil + Sist.Vent." || emisor == "Conductos + Sist.Vent." ||
         emisor == "Suelo radiante + Sist.Vent." || emisor == "Unid.Interior + Sist.Vent.";
}

void ComprobarEmisores(const Edificio& edificio, Lista& lista) {
  const AjustesUso ajustes = ResolverAjustes(edificio);
  if (ajustes.residencial || ajustes.aire != SistemaAire::Toma) return;
  for (std::size_t s = 0; s < edificio.NumeroSistemas(); ++s) {
    const SistemaResidencial& sistema = edificio.GetSistema(s);
    const TipoSistema tipo = TipoSistemaDe(sistema.Tipo_sistema);
    if (!DaCalefaccion(tipo) && !DaRefrigeracion(tipo)) continue;
    if (std::none_of(sistema.instalaciones.begin(), sistema.instalaciones.end(),
                     [](const Instalaciones& g) { return NecesitaVentilacion(g.Emisor); }))
      continue;
    lista.push_back(
        {"La definición de equipos debe ser coherente con el sistema de ventilación "
         "definido.",
         Pagina::Instalaciones});
    return;
  }
}

}  // namespace

std::string_view NombrePagina(PaginaProyecto pagina) {
  switch (pagina) {
    case Pagina::Global:
      return "Global";
    case Pagina::Muros:
      return "Edificio, muros";
    case Pagina::Cubiertas:
      return "Edificio, cubiertas";
    case Pagina::Suelos:
      return "Edificio, suelos";
    case Pagina::Huecos:
      return "Edificio, huecos";
    case Pagina::CiudadEntorno:
      return "Edificio, ciudad y entorno";
    case Pagina::Instalaciones:
      return "Instalaciones";
  }
  return {};
}

std::vector<MensajePrevio> MensajesPrevios(const Edificio& edificio) {
  Lista lista;
  ComprobarSuelos(edificio, lista);
  ComprobarVolumen(edificio, lista);
  ComprobarACS(edificio, lista);
  ComprobarCoeficientes(edificio, lista);
  ComprobarTransmitancias(edificio, lista);
  ComprobarEmisores(edificio, lista);
  return lista;
}

std::string ComprobacionesPrevias(const Edificio& edificio) {
  const Lista lista = MensajesPrevios(edificio);
  return lista.empty() ? std::string() : lista.back().texto;
}

bool FaltaACS(const Edificio& edificio) {
  if (!edificio.GetDatosGenerales().EsResidencial()) return false;
  for (std::size_t i = 0; i < edificio.NumeroSistemas(); ++i)
    if (DaACS(TipoSistemaDe(edificio.GetSistema(i).Tipo_sistema))) return false;
  return true;
}

bool HayEscaparateEnVivienda(const Edificio& edificio) {
  if (!edificio.GetDatosGenerales().EsResidencial()) return false;
  for (std::size_t i = 0; i < edificio.NumeroHuecos(); ++i) {
    const Huecos& grupo = edificio.GetHuecos(i);
    if (grupo.Tipo_de_hueco == kEscaparate && grupo.NumeroTotal() > 0) return true;
  }
  return false;
}

std::vector<MensajePrevio> TodasLasComprobaciones(const Edificio& edificio) {
  Lista lista = MensajesPrevios(edificio);
  if (FaltaACS(edificio)) lista.push_back({kSinACS, Pagina::Instalaciones});
  if (HayEscaparateEnVivienda(edificio)) lista.push_back({kEscaparateVivienda, Pagina::Huecos});
  return lista;
}

std::vector<Mensaje> AvisosPrevios(const Edificio& edificio) {
  std::vector<Mensaje> avisos;
  if (std::string texto = ComprobacionesPrevias(edificio); !texto.empty())
    avisos.push_back({"Valor incorrecto", std::move(texto)});
  if (FaltaACS(edificio)) avisos.push_back({"AVISO", kSinACS});
  if (HayEscaparateEnVivienda(edificio)) avisos.push_back({"AVISO", kEscaparateVivienda});
  return avisos;
}

}  // namespace novex
