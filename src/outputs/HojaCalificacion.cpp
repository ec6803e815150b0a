#include "outputs/HojaCalificacion.h"

#include <algorithm>

namespace novex {
namespace {

constexpr std::array<std::pair<Servicio, const char*>, 4> kServiciosHoja = {
    {{kCalefaccion, "Calefacción"},
     {kRefrigeracion, "Refrigeración"},
     {kACS, "ACS"},
     {kIluminacion, "Iluminación"}}};

struct TitulosBase {
  const char* servicios;
  const char* total;
  UnidadEnergia unidad;
};
constexpr std::array<TitulosBase, 2> kTitulos = {
    {{"Emisiones CO2 (kg/m2 año)", "Emisiones Totales CO2 (kg/m2 año)", kEmisiones},
     {"Energia primaria no renovable (kWh/m2 año)", "Energía primaria no renov.(kWh/m2 año)",
      kPrimariaNoRenovable}}};

std::string Cifra(float valor) {
  return Fijo(static_cast<double>(valor), kDecimalesResultado);
}

std::string Rotulo(std::size_t banda) {
  return std::string(1, static_cast<char>('A' + static_cast<int>(banda))) + ": ";
}

std::vector<std::string> TextosEscala(bool nuevo, const UmbralesEscala& th) {
  std::vector<std::string> textos(kBandas);
  const std::size_t ultima = UltimaBanda(nuevo, th);
  textos[0] = Rotulo(0) + "< " + Cifra(th[0]);
  for (std::size_t b = 1; b < ultima; ++b)
    textos[b] = Rotulo(b) + Cifra(th[b - 1]) + " < " + Cifra(th[b]);
  textos[ultima] = Rotulo(ultima) + ">= " + Cifra(th[ultima - 1]);
  return textos;
}

FilaCalificacion Fila(Indicador indicador, const char* nombre, const CasoCalculado& caso) {
  const ResultadosCaso& r = caso.resultado->resultados;
  const UmbralesEscala& th = r.escala.th[static_cast<std::size_t>(indicador)];
  const bool nuevo = caso.edificio->GetDatosGenerales().Modo_trabajo == "Nuevo";
  FilaCalificacion fila;
  fila.indicador = indicador;
  fila.nombre = nombre;
  fila.letra = LetraMostrada(indicador, caso);
  fila.escala = {std::string(kSinLetra)};
  if (fila.letra == kSinLetra) return fila;
  fila.valor = ValorIndicador(indicador, r);
  if (!HayEscala(th)) return fila;
  fila.escala = TextosEscala(nuevo, th);
  fila.banda = static_cast<std::size_t>(fila.letra.front() - 'A');
  return fila;
}

// Celdas de la escala de una fila: todas las bandas hasta `bandas`, o los límites de la suya.
std::vector<Celda> CeldasEscala(const FilaCalificacion& fila, EscalaHoja escala,
                                std::size_t bandas) {
  if (escala == EscalaHoja::SuBanda)
    return {fila.banda ? fila.escala.at(*fila.banda).substr(Rotulo(*fila.banda).size())
                       : std::string()};
  std::vector<Celda> celdas;
  for (std::size_t b = 0; b < bandas; ++b)
    celdas.push_back(b < fila.escala.size() ? fila.escala[b] : std::string());
  return celdas;
}

// Bandas que alguna fila tiene.
std::size_t BandasUsadas(const std::vector<FilaCalificacion>& filas) {
  std::size_t bandas = 1;
  for (const FilaCalificacion& fila : filas)
    for (std::size_t b = 0; b < fila.escala.size(); ++b)
      if (!fila.escala[b].empty()) bandas = std::max(bandas, b + 1);
  return bandas;
}

Tabla TablaDe(const std::string& titulo, const std::vector<FilaCalificacion>& filas,
              EscalaHoja escala) {
  const std::size_t bandas = escala == EscalaHoja::SuBanda ? 1 : BandasUsadas(filas);
  const bool avisos = std::any_of(filas.begin(), filas.end(),
                                  [](const FilaCalificacion& f) { return !f.aviso.empty(); });
  Tabla tabla;
  tabla.titulo = titulo;
  tabla.cabeceras = {"Servicio", "Valor", "Letra", "Escala"};
  tabla.cabeceras.resize(3 + bandas);
  if (avisos) tabla.cabeceras.push_back("Equipos");
  for (const FilaCalificacion& fila : filas) {
    Celda valor(fila.TextoValor());
    if (fila.valor) valor.numero = static_cast<double>(*fila.valor);
    std::vector<Celda> celdas = {fila.nombre, std::move(valor), fila.letra};
    for (Celda& celda : CeldasEscala(fila, escala, bandas)) celdas.push_back(std::move(celda));
    if (avisos) celdas.push_back(fila.aviso);
    tabla.filas.push_back(std::move(celdas));
  }
  return tabla;
}

}  // namespace

std::string FilaCalificacion::TextoValor() const {
  return valor ? Cifra(*valor) : std::string(kSinLetra);
}

HojaCalificacion HojaDeCalificacion(const CasoCalculado& caso, BaseCalificacion base) {
  HojaCalificacion hoja;
  if (!SeCalifica(*caso.edificio)) return hoja;
  const bool residencial = caso.edificio->GetDatosGenerales().EsResidencial();
  const TitulosBase& titulos = kTitulos[static_cast<std::size_t>(base)];
  hoja.rellena = true;
  hoja.tituloDemanda = kTituloDemandaSensible;
  hoja.tituloServicios = titulos.servicios;
  hoja.demanda = {Fila(Indicador::DemandaCalefaccion, "Calefacción", caso),
                  Fila(Indicador::DemandaRefrigeracion, "Refrigeración", caso)};
  const auto conEquipo = ServiciosConEquipo(*caso.edificio);
  for (const auto& [servicio, nombre] : kServiciosHoja) {
    const auto indicador = IndicadorDe(servicio, titulos.unidad, residencial);
    if (!indicador) continue;
    FilaCalificacion fila = Fila(*indicador, nombre, caso);
    if (servicio < kServiciosDemanda && !conEquipo[servicio]) fila.aviso = "No existe equipos";
    hoja.servicios.push_back(std::move(fila));
  }
  hoja.total =
      Fila(IndicadorDe(std::nullopt, titulos.unidad, residencial).value(), titulos.total, caso);
  hoja.notaZona = NotaZonaSinRefrigeracion(*caso.edificio);
  hoja.horas = TextoHorasFuera(caso);
  return hoja;
}

std::vector<Tabla> TablasHoja(const HojaCalificacion& hoja, EscalaHoja escala) {
  if (!hoja.rellena) return {};
  std::vector<FilaCalificacion> filas = hoja.servicios;
  filas.push_back(hoja.total);
  std::vector<Tabla> tablas = {TablaDe(hoja.tituloDemanda, hoja.demanda, escala),
                               TablaDe(hoja.tituloServicios, filas, escala)};
  for (const std::string& nota : {hoja.notaZona, hoja.horas.texto})
    if (!nota.empty()) tablas.back().notas.push_back(nota);
  return tablas;
}

Tabla TablaEscala(const HojaCalificacion& hoja) {
  constexpr std::string_view kBloque = "█";
  Tabla tabla;
  if (!hoja.rellena || hoja.total.escala.size() < kBandas) return tabla;
  tabla.titulo = hoja.total.nombre + ": " + hoja.total.TextoValor() + "  " + hoja.total.letra;
  for (std::size_t b = 0; b < kBandas; ++b) {
    const std::string& texto = hoja.total.escala[b];
    if (texto.empty()) continue;
    std::string barra;
    for (std::size_t i = 0; i < 2 * (b + 1); ++i) barra += kBloque;
    const bool aqui = hoja.total.banda == b;
    tabla.filas.push_back({texto.substr(0, 1), barra, texto.substr(Rotulo(b).size()),
                           aqui ? "◄ " + hoja.total.TextoValor() : std::string()});
  }
  return tabla;
}

}  // namespace novex
