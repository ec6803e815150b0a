#include "demand/EstadisticasClima.h"

#include <algorithm>

#include "base/ErrorFichero.h"
#include "base/FicheroSeguro.h"
#include "base/NumeroTexto.h"
#include "base/Texto.h"
#include "demand/FicheroMet.h"

namespace novex {
namespace {

constexpr std::string_view kCabeceraMensual =
    "zona;mes;latitud_deg;longitud_deg;altitud_m;meridiano_deg;T_media_C;T_desv_diaria_K;T_"
    "autocorr1;"
    "T_min_C;T_max_C;HR_media_pct;directa_kWh_m2;difusa_kWh_m2;global_desv_diaria_kWh_m2;"
    "viento_desv_m_s";
constexpr std::string_view kCabeceraPerfil =
    "zona;mes;variable;unidad;h01;h02;h03;h04;h05;h06;h07;h08;h09;h10;h11;h12;h13;h14;h15;h16;h17;"
    "h18;"
    "h19;h20;h21;h22;h23;h24";
constexpr std::string_view kCabeceraTendencia = "conjunto;mes;delta_T_K";

constexpr std::size_t kMaximoConjuntos = 100;

// Recorre las filas de un csv y da los fallos con su línea.
class TablaCsv {
 public:
  TablaCsv(const std::filesystem::path& ruta, std::string_view cabecera)
      : ruta_(ruta.string()), contenido_(LeerFichero(ruta)), resto_(contenido_) {
    columnas_ = static_cast<std::size_t>(std::count(cabecera.begin(), cabecera.end(), ';')) + 1;
    if (TomarLinea() != cabecera) Fallar("la cabecera no es la esperada");
  }

  /// Pasa a la fila siguiente; false al acabar.
  bool Avanzar() {
    while (!resto_.empty()) {
      const std::string_view linea = TomarLinea();
      if (linea.empty()) continue;
      Repartir(linea);
      if (campos_.size() != columnas_)
        Fallar("hay " + std::to_string(campos_.size()) + " campos y la cabecera tiene " +
               std::to_string(columnas_));
      return true;
    }
    return false;
  }

  std::string_view Texto(std::size_t columna) const { return campos_[columna]; }

  double Numero(std::size_t columna, double minimo, double maximo) const {
    double valor = 0;
    if (!LeerReal(campos_[columna], valor) || valor < minimo || valor > maximo)
      Fallar("el campo " + std::to_string(columna + 1) +
             " no vale: " + std::string(campos_[columna]));
    return valor;
  }

  std::size_t Mes(std::size_t columna) const {
    const double mes = Numero(columna, 1, kMeses);
    if (mes != static_cast<double>(static_cast<int>(mes))) Fallar("el mes no es un entero");
    return static_cast<std::size_t>(mes) - 1;
  }

  [[noreturn]] void Fallar(const std::string& motivo) const {
    throw ErrorFichero(ruta_, 0, linea_, 0,
                       ruta_ + ", línea " + std::to_string(linea_) + ": " + motivo);
  }

 private:
  std::string_view TomarLinea() {
    ++linea_;
    const std::size_t fin = resto_.find('\n');
    const std::string_view linea = SinBlancosFinales(resto_.substr(0, fin));
    resto_.remove_prefix(fin == std::string_view::npos ? resto_.size() : fin + 1);
    return linea;
  }

  void Repartir(std::string_view linea) {
    campos_.clear();
    while (campos_.size() <= columnas_) {
      const std::size_t fin = linea.find(';');
      campos_.push_back(linea.substr(0, fin));
      if (fin == std::string_view::npos) return;
      linea.remove_prefix(fin + 1);
    }
  }

  std::string ruta_;
  std::string contenido_;
  std::string_view resto_;
  std::vector<std::string_view> campos_;
  std::size_t columnas_ = 0;
  int linea_ = 0;
};

EstadisticasZona* BuscarZona(EstadisticasClima& clima, std::string_view nombre) {
  const auto it = std::find_if(clima.zonas.begin(), clima.zonas.end(),
                               [&](const auto& zona) { return zona.zona == nombre; });
  return it == clima.zonas.end() ? nullptr : &*it;
}

EstadisticasZona& ZonaDeFila(EstadisticasClima& clima, const TablaCsv& tabla) {
  const std::string_view nombre = tabla.Texto(0);
  if (EstadisticasZona* zona = BuscarZona(clima, nombre)) return *zona;
  if (std::find(kZonasMet.begin(), kZonasMet.end(), nombre) == kZonasMet.end())
    tabla.Fallar("la zona no existe: " + std::string(nombre));
  clima.zonas.emplace_back().zona = nombre;
  return clima.zonas.back();
}

void LeerMensual(const std::filesystem::path& ruta, EstadisticasClima& clima) {
  TablaCsv tabla(ruta, kCabeceraMensual);
  int filas = 0;
  while (tabla.Avanzar()) {
    EstadisticasZona& zona = ZonaDeFila(clima, tabla);
    EstadisticasMes& mes = zona.meses[tabla.Mes(1)];
    if (mes.desviacionDiaria > 0) tabla.Fallar("mes repetido");
    zona.latitud = tabla.Numero(2, -66, 66);
    zona.longitud = tabla.Numero(3, -180, 180);
    zona.altitud = tabla.Numero(4, -500, 9000);
    zona.meridiano = tabla.Numero(5, -180, 180);
    mes.temperaturaMedia = tabla.Numero(6, -40, 50);
    mes.desviacionDiaria = tabla.Numero(7, 0.05, 15);
    mes.autocorrelacion = tabla.Numero(8, -0.5, 0.95);
    mes.temperaturaMinima = tabla.Numero(9, -40, 55);
    mes.temperaturaMaxima = tabla.Numero(10, -40, 55);
    mes.humedadRelativa = tabla.Numero(11, 5, 97);
    mes.directa = tabla.Numero(12, 0.1, 400);
    mes.difusa = tabla.Numero(13, 0.1, 400);
    mes.desviacionGlobal = tabla.Numero(14, 0.01, 6);
    mes.desviacionViento = tabla.Numero(15, 0, 20);
    ++filas;
  }
  if (filas != static_cast<int>(kZonasMet.size()) * kMeses) tabla.Fallar("faltan meses o zonas");
}

struct VariablePerfil {
  std::string_view nombre;
  CursoDiario EstadisticasMes::*perfil;
  double minimo;
  double maximo;
};

constexpr std::array<VariablePerfil, 6> kVariables = {{
    {"temperatura", &EstadisticasMes::temperatura, -40, 55},
    {"depresion_cielo", &EstadisticasMes::depresionCielo, 0, 40},
    {"directa", &EstadisticasMes::directaHora, 0, 1400},
    {"difusa", &EstadisticasMes::difusaHora, 0, 900},
    {"humedad_absoluta", &EstadisticasMes::humedadAbsoluta, 0.0001, 0.04},
    {"viento", &EstadisticasMes::viento, 0, 40},
}};

void LeerPerfiles(const std::filesystem::path& ruta, EstadisticasClima& clima) {
  TablaCsv tabla(ruta, kCabeceraPerfil);
  // Una marca por zona, mes y variable: así se ven las filas que faltan y las repetidas.
  std::vector<bool> leidas(clima.zonas.size() * kMeses * kVariables.size());
  while (tabla.Avanzar()) {
    EstadisticasZona* zona = BuscarZona(clima, tabla.Texto(0));
    if (zona == nullptr) tabla.Fallar("zona sin fila mensual: " + std::string(tabla.Texto(0)));
    const auto variable =
        std::find_if(kVariables.begin(), kVariables.end(),
                     [&](const VariablePerfil& v) { return v.nombre == tabla.Texto(2); });
    if (variable == kVariables.end())
      tabla.Fallar("variable desconocida: " + std::string(tabla.Texto(2)));
    const std::size_t mes = tabla.Mes(1);
    const auto indiceZona = static_cast<std::size_t>(zona - clima.zonas.data());
    const auto indiceVariable = static_cast<std::size_t>(variable - kVariables.begin());
    const std::size_t marca = (indiceZona * kMeses + mes) * kVariables.size() + indiceVariable;
    if (leidas[marca]) tabla.Fallar("perfil repetido");
    leidas[marca] = true;
    CursoDiario& perfil = zona->meses[mes].*(variable->perfil);
    for (std::size_t h = 0; h < perfil.size(); ++h)
      perfil[h] = tabla.Numero(4 + h, variable->minimo, variable->maximo);
  }
  if (std::find(leidas.begin(), leidas.end(), false) != leidas.end())
    tabla.Fallar("faltan perfiles");
}

void LeerTendencias(const std::filesystem::path& ruta, EstadisticasClima& clima) {
  TablaCsv tabla(ruta, kCabeceraTendencia);
  std::vector<int> mesesLeidos;
  while (tabla.Avanzar()) {
    auto it = std::find_if(clima.tendencias.begin(), clima.tendencias.end(),
                           [&](const auto& t) { return t.conjunto == tabla.Texto(0); });
    if (it == clima.tendencias.end()) {
      if (clima.tendencias.size() == kMaximoConjuntos) tabla.Fallar("hay demasiados conjuntos");
      clima.tendencias.emplace_back().conjunto = tabla.Texto(0);
      mesesLeidos.push_back(0);
      it = clima.tendencias.end() - 1;
    }
    // Los meses van en orden: basta contar para saber si están todos.
    int& leidos = mesesLeidos[static_cast<std::size_t>(it - clima.tendencias.begin())];
    const std::size_t mes = tabla.Mes(1);
    if (mes != static_cast<std::size_t>(leidos)) tabla.Fallar("mes fuera de orden o repetido");
    it->incremento[mes] = tabla.Numero(2, -10, 10);
    ++leidos;
  }
  for (const int leidos : mesesLeidos)
    if (leidos != kMeses) tabla.Fallar("faltan meses de un conjunto");
}

}  // namespace

const EstadisticasZona* EstadisticasClima::Zona(std::string_view nombre) const {
  const auto it = std::find_if(zonas.begin(), zonas.end(),
                               [&](const auto& zona) { return zona.zona == nombre; });
  return it == zonas.end() ? nullptr : &*it;
}

const TendenciaClima* EstadisticasClima::Tendencia(std::string_view conjunto) const {
  const auto it = std::find_if(tendencias.begin(), tendencias.end(),
                               [&](const auto& t) { return t.conjunto == conjunto; });
  return it == tendencias.end() ? nullptr : &*it;
}

EstadisticasClima LeerEstadisticasClima(const std::filesystem::path& carpeta) {
  EstadisticasClima clima;
  LeerMensual(carpeta / "mensual.csv", clima);
  LeerPerfiles(carpeta / "perfil_diario.csv", clima);
  LeerTendencias(carpeta / "tendencia.csv", clima);
  return clima;
}

EstadisticasZona AplicarTendencia(const EstadisticasZona& zona, const TendenciaClima& tendencia) {
  EstadisticasZona desplazada = zona;
  for (std::size_t m = 0; m < desplazada.meses.size(); ++m)
    desplazada.meses[m].incremento += tendencia.incremento[m];
  return desplazada;
}

}  // namespace novex
