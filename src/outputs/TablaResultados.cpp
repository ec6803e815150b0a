#include "outputs/TablaResultados.h"

#include "outputs/HojaCalificacion.h"
#include "outputs/ReglasResultados.h"
#include "rating/Escala.h"

namespace novex {
namespace {

struct ServicioMostrado {
  Servicio servicio;
  const char* nombre;
};
constexpr std::array<ServicioMostrado, kServicios> kMostrados = {{{kCalefaccion, "Calefacción"},
                                                                  {kRefrigeracion, "Refrigeración"},
                                                                  {kACS, "ACS"},
                                                                  {kVentilacion, "Ventilación"},
                                                                  {kIluminacion, "Iluminación"}}};

constexpr int kDecimales = 2;

Celda Cifra(float valor) {
  return Celda::Numero(static_cast<double>(valor), kDecimales);
}

// La iluminación solo es un servicio en terciario.
bool SeMuestra(Servicio servicio, const Edificio& edificio) {
  return servicio != kIluminacion || !edificio.GetDatosGenerales().EsResidencial();
}

float Demanda(Servicio servicio, const ResultadosCaso& r) {
  if (servicio == kCalefaccion) return r.demandaCalefaccion;
  return servicio == kRefrigeracion ? r.demandaRefrigeracion : r.demandaACS;
}

std::string Texto(int perfilUso) {
  const auto i = static_cast<std::size_t>(perfilUso);
  return perfilUso >= 0 && i < kNombrePerfilUso.size() ? std::string(kNombrePerfilUso[i])
                                                       : std::to_string(perfilUso);
}

std::string TextoEquipos(const Edificio& edificio) {
  const std::size_t n = edificio.NumeroSistemas();
  const bool defecto = edificio.GetDatosGenerales().Equipos_Defecto == "SI";
  if (n == 0) return defecto ? "por defecto" : "ninguno";
  return std::to_string(n) + (n == 1 ? " sistema" : " sistemas") +
         (defecto ? ", y por defecto donde no llegan" : "");
}

// Letra de demanda, de primaria no renovable y de emisiones de un servicio; vacías las que no
// tiene.
struct LetrasServicio {
  std::string demanda, primaria, emisiones;
};

LetrasServicio LetrasDe(Servicio servicio, const CasoCalculado& caso) {
  const auto letra = [&](Indicador i) { return LetraMostrada(i, caso); };
  switch (servicio) {
    case kCalefaccion:
      return {letra(Indicador::DemandaCalefaccion), letra(Indicador::EPriNoRCalefaccion),
              letra(Indicador::EmisionesCalefaccion)};
    case kRefrigeracion:
      return {letra(Indicador::DemandaRefrigeracion), letra(Indicador::EPriNoRRefrigeracion),
              letra(Indicador::EmisionesRefrigeracion)};
    case kACS:
      return {"", letra(Indicador::EPriNoRACS), letra(Indicador::EmisionesACS)};
    case kIluminacion:
      return {"", letra(Indicador::EPriNoRIlu), letra(Indicador::EmisionesIlu)};
    default:
      return {};
  }
}

std::vector<Celda> FilaServicio(const char* nombre, const std::optional<float>& demanda,
                                const std::array<float, kUnidadesEnergia>& valores,
                                const LetrasServicio& letras) {
  return {nombre,
          demanda ? Cifra(*demanda) : Celda(),
          letras.demanda,
          Cifra(valores[kFinal]),
          Cifra(valores[kPrimariaTotal]),
          Cifra(valores[kPrimariaRenovable]),
          Cifra(valores[kPrimariaNoRenovable]),
          letras.primaria,
          Cifra(valores[kEmisiones]),
          letras.emisiones};
}

}  // namespace

Tabla TablaEdificio(const std::string& nombreCaso, const Edificio& edificio) {
  const DatosGenerales& generales = edificio.GetDatosGenerales();
  const Localizacion& lugar = edificio.GetLocalizacion();
  const Recinto& recinto = edificio.GetRecinto(0);
  Tabla tabla;
  tabla.titulo = NombreMostrado(nombreCaso);
  if (!generales.Edificio_Titulo.empty()) tabla.titulo += " · " + generales.Edificio_Titulo;
  tabla.filas.push_back(
      {"Lugar", lugar.Municipio + " (" + lugar.Provincia + "), zona " + lugar.ZonaClimatica});
  tabla.filas.push_back(
      {"Uso", Texto(generales.PerfilUso) +
                  (generales.Modo_trabajo == "Nuevo" ? ", obra nueva" : ", existente")});
  tabla.filas.push_back(
      {"Tamaño", Fijo(static_cast<double>(recinto.Suelo_habitable_m2), kDecimales) +
                     " m² útiles, " +
                     Fijo(static_cast<double>(recinto.Volumen_total_m3), kDecimales) + " m³"});
  tabla.filas.push_back({"Equipos", TextoEquipos(edificio)});
  return tabla;
}

Tabla TablaServicios(const CasoCalculado& caso) {
  const ResultadosCaso& r = caso.resultado->resultados;
  Tabla tabla;
  tabla.titulo = "Por m² y año: energía en kWh, emisiones en kg de CO2";
  tabla.cabeceras = {"",          "Demanda",      "", "E. final",  "Primaria",
                     "Renovable", "No renovable", "", "Emisiones", ""};
  for (const auto& [servicio, nombre] : kMostrados) {
    if (!SeMuestra(servicio, *caso.edificio)) continue;
    std::array<float, kUnidadesEnergia> valores{};
    for (std::size_t u = 0; u < kUnidadesEnergia; ++u)
      valores[u] = r.servicio[servicio].porUnidad[u][0];
    const auto demanda =
        servicio < kServiciosDemanda ? std::optional(Demanda(servicio, r)) : std::nullopt;
    tabla.filas.push_back(FilaServicio(nombre, demanda, valores, LetrasDe(servicio, caso)));
  }
  const auto letra = [&](Indicador i) { return LetraMostrada(i, caso); };
  tabla.filas.push_back(
      FilaServicio("Total", std::nullopt, r.total,
                   {"", letra(Indicador::EPriNoRTotales), letra(Indicador::EmisionesTotales)}));

  for (std::string nota : {NotaZonaSinRefrigeracion(*caso.edificio), TextoHorasFuera(caso).texto})
    if (!nota.empty()) tabla.notas.push_back(std::move(nota));
  return tabla;
}

Tabla TablaVectores(const CasoCalculado& caso) {
  const ResultadosCaso& r = caso.resultado->resultados;
  Tabla tabla;
  tabla.titulo = "Energía final por vector, kWh al año del edificio";
  tabla.cabeceras = {""};
  for (const auto& [servicio, nombre] : kMostrados)
    if (SeMuestra(servicio, *caso.edificio)) tabla.cabeceras.push_back(nombre);
  tabla.cabeceras.push_back("Total");
  for (std::size_t v = 0; v < kVectores; ++v) {
    std::vector<Celda> fila = {std::string(kNombreVector[v])};
    float total = 0;
    bool hay = false;
    for (const auto& [servicio, nombre] : kMostrados) {
      if (!SeMuestra(servicio, *caso.edificio)) continue;
      const float valor = r.servicio[servicio].finalPorVector[v][0];
      total += valor;
      hay |= valor != 0.0F;
      fila.push_back(valor == 0.0F ? Celda() : Cifra(valor));
    }
    fila.push_back(Cifra(total));
    if (hay) tabla.filas.push_back(std::move(fila));
  }
  return tabla;
}

std::vector<Tabla> TablasCalificacion(const CasoCalculado& caso, EscalaHoja escala) {
  std::vector<Tabla> tablas;
  for (const auto base : {BaseCalificacion::Emisiones, BaseCalificacion::PrimariaNoRenovable}) {
    const HojaCalificacion hoja = HojaDeCalificacion(caso, base);
    std::vector<Tabla> filas = TablasHoja(hoja, escala);
    // La demanda es la misma en las dos hojas.
    if (!filas.empty() && base != BaseCalificacion::Emisiones) filas.erase(filas.begin());
    for (Tabla& tabla : filas) tablas.push_back(std::move(tabla));
    if (Tabla total = TablaEscala(hoja); !total.filas.empty()) tablas.push_back(std::move(total));
  }
  return tablas;
}

std::vector<Tabla> TablasCaso(const CasoCalculado& caso) {
  std::vector<Tabla> tablas = {TablaEdificio(caso.nombre, *caso.edificio), TablaServicios(caso)};
  for (Tabla& tabla : TablasCalificacion(caso, EscalaHoja::SuBanda)) {
    tabla.notas.clear();  // ya están con los servicios
    tablas.push_back(std::move(tabla));
  }
  tablas.push_back(TablaVectores(caso));
  return tablas;
}

}  // namespace novex
