#include "outputs/TablaResultados.h"

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

LetrasServicio LetrasDe(Servicio servicio, const EscalaCaso& escala) {
  const auto letra = [&](Indicador i) { return escala.letra[static_cast<std::size_t>(i)]; };
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

std::string NotaHoras(const ResultadosCaso& r) {
  if (r.horasOcupacion <= 0.0F) return {};
  const float fuera = r.horasFueraCalefaccion + r.horasFueraRefrigeracion;
  return "Horas fuera de consigna: " + Fijo(static_cast<double>(r.horasFueraCalefaccion), 0) +
         " de calefacción y " + Fijo(static_cast<double>(r.horasFueraRefrigeracion), 0) +
         " de refrigeración, el " +
         Fijo(static_cast<double>(fuera * 100.0F / r.horasOcupacion), 1) + " % de las " +
         Fijo(static_cast<double>(r.horasOcupacion), 0) + " h de ocupación";
}

struct IndicadorMostrado {
  Indicador indicador;
  const char* nombre;
};
constexpr std::array<IndicadorMostrado, kIndicadores> kIndicadoresMostrados = {
    {{Indicador::EmisionesTotales, "Emisiones totales"},
     {Indicador::EPriNoRTotales, "Primaria no renovable total"},
     {Indicador::DemandaCalefaccion, "Demanda de calefacción"},
     {Indicador::DemandaRefrigeracion, "Demanda de refrigeración"},
     {Indicador::EmisionesCalefaccion, "Emisiones de calefacción"},
     {Indicador::EmisionesRefrigeracion, "Emisiones de refrigeración"},
     {Indicador::EmisionesACS, "Emisiones de ACS"},
     {Indicador::EmisionesIlu, "Emisiones de iluminación"},
     {Indicador::EPriNoRCalefaccion, "Primaria no renovable de calefacción"},
     {Indicador::EPriNoRRefrigeracion, "Primaria no renovable de refrigeración"},
     {Indicador::EPriNoRACS, "Primaria no renovable de ACS"},
     {Indicador::EPriNoRIlu, "Primaria no renovable de iluminación"}}};

bool EsDeIluminacion(Indicador indicador) {
  return indicador == Indicador::EmisionesIlu || indicador == Indicador::EPriNoRIlu;
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
    tabla.filas.push_back(FilaServicio(nombre, demanda, valores, LetrasDe(servicio, r.escala)));
  }
  const auto letra = [&](Indicador i) { return r.escala.letra[static_cast<std::size_t>(i)]; };
  tabla.filas.push_back(
      FilaServicio("Total", std::nullopt, r.total,
                   {"", letra(Indicador::EPriNoRTotales), letra(Indicador::EmisionesTotales)}));

  if (SinRefrigeracionCalificada(*caso.edificio) &&
      caso.edificio->GetDatosGenerales().Tiposimulacion != "Simulacion")
    tabla.notas.push_back("No se contabiliza refrigeración por estar en zona " +
                          caso.edificio->GetLocalizacion().ZonaClimatica);
  if (std::string nota = NotaHoras(r); !nota.empty()) tabla.notas.push_back(std::move(nota));
  return tabla;
}

Tabla TablaCalificacion(const CasoCalculado& caso) {
  const ResultadosCaso& r = caso.resultado->resultados;
  const DatosGenerales& generales = caso.edificio->GetDatosGenerales();
  // La obra nueva se queda en "E": sus dos últimos umbrales no cuentan.
  const std::size_t umbrales = generales.Modo_trabajo == "Nuevo" ? 4 : 6;
  Tabla tabla;
  tabla.titulo = "Calificación";
  tabla.cabeceras = {"Indicador, por m² y año", "Valor", "Letra"};
  for (std::size_t k = 0; k < umbrales; ++k)
    tabla.cabeceras.push_back(std::string(1, static_cast<char>('A' + static_cast<int>(k))) + " <");
  for (const auto& [indicador, nombre] : kIndicadoresMostrados) {
    if (generales.EsResidencial() && EsDeIluminacion(indicador)) continue;
    const auto i = static_cast<std::size_t>(indicador);
    std::vector<Celda> fila = {nombre, Cifra(ValorIndicador(indicador, r)), r.escala.letra[i]};
    if (r.escala.letra[i] != kSinLetra)
      for (std::size_t k = 0; k < umbrales; ++k) fila.push_back(Cifra(r.escala.th[i][k]));
    tabla.filas.push_back(std::move(fila));
  }
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

std::vector<Tabla> TablasCaso(const CasoCalculado& caso) {
  return {TablaEdificio(caso.nombre, *caso.edificio), TablaServicios(caso), TablaCalificacion(caso),
          TablaVectores(caso)};
}

}  // namespace novex
