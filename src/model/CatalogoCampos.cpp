#include "model/CatalogoCampos.h"

#include <algorithm>
#include <array>
#include <limits>

#include "base/NumeroTexto.h"
#include "base/Texto.h"

namespace novex {
namespace {

constexpr float kSinLimite = std::numeric_limits<float>::infinity();
constexpr auto Real = TipoCampo::Real;
constexpr auto Entero = TipoCampo::Entero;

// clave, sujeto del mensaje, tipo, mínimo, máximo, valor de sustitución, unidad
constexpr std::array kCampos = std::to_array<CampoCatalogo>({
    {"Cualquiera", "El valor", Real, -kSinLimite, kSinLimite, 0.0F, ""},
    {"RatioQS", "Ratio calor sensible ocupantes", Real, 0.0F, 40.0F, 0.0F, "W/m2"},
    {"RatioQL", "Ratio calor latente ocupantes", Real, 0.0F, 40.0F, 0.0F, "W/m2"},
    {"RatioVent", "Caudal ventilacion", Entero, -1.0F, 1000000.0F, 1000.0F, "m3/h"},
    {"RatioQIlu", "Ratio iluminación", Real, 0.0F, 40.0F, 0.0F, "W/m2"},
    {"RatioQEqu", "Ratio equipos", Real, 0.0F, 40.0F, 0.0F, "W/m2"},
    {"Lux", "Lux", Real, 1.0F, 2000.0F, 400.0F, "Lux"},
    {"EVEIIMax", "VEIIMax", Real, 0.5F, 10.0F, 5.0F, "VEIIMax"},
    {"Cota", "La cota", Entero, -300.0F, 4000.0F, 0.0F, "m"},
    {"Entero1", "El paso", Entero, 1.0F, 4000.0F, 1.0F, ""},
    {"Area", "El area", Real, 0.0F, 900000.0F, 0.0F, "m2"},
    {"Latitud", "La latitud", Real, -90.0F, 90.0F, 40.0F, "º"},
    {"Long", "La longitud", Real, 0.0F, 1000000.0F, 50.0F, "m"},
    {"Volumen", "El volumen", Real, 0.0F, 3000000.0F, 0.0F, "m3"},
    {"CoefU", "El coeficiente de transferencia de calor", Real, 0.0F, 10.0F, 1.0F, "W/m2K"},
    {"CoefUH", "El coeficiente de transferencia de calor", Real, 0.0F, 6.0F, 5.0F, "W/m2K"},
    {"Renov", "El nº de renovaciones", Real, 0.0F, 30.0F, 0.5F, "Renov/h"},
    {"Resist", "La resistencia térmica", Real, 0.0F, 10.0F, 1.0F, "m2K/W"},
    {"FSCristal", "El factor solar del cristal", Real, 0.0F, 0.9F, 0.8F, ""},
    {"Var", "Esta variable", Real, 0.0F, 1.0F, 1.0F, ""},
    {"Sombra", "El porcentaje sombra", Real, 0.0F, 100.0F, 0.0F, "%"},
    {"FMarco", "La fracción de marco", Real, 0.0F, 100.0F, 10.0F, "%"},
    {"NVentanas", "El nº de ventanas", Entero, 0.0F, 999.0F, 0.0F, ""},
    {"TCalef", "La temperatura de impulsion del sistema de calefacción", Entero, 1.0F, 95.0F, 80.0F,
     "ºC"},
    {"Salto", "El salto de temperatura debe estar entre 1 y 20", Entero, 1.0F, 20.0F, 80.0F, "ºC"},
    {"TACS", "La temperatura de impulsion del sistema de ACS", Entero, 45.0F, 60.0F, 50.0F, "ºC"},
    {"TRefri", "La temperatura de impulsion del sistema de refrigeración", Entero, 1.0F, 95.0F,
     80.0F, "ºC"},
    {"SaltoP", "El salto de presiones", Entero, 0.0F, 10000.0F, 80.0F, "Pa"},
    {"DP", "El salto de presiones", Entero, 0.0F, 100.0F, 6.0F, "m.c.a"},
    {"DT", "El salto de temperaturas", Real, 0.0F, 100.0F, 6.0F, "ºC"},
    {"DPVent", "El salto de presiones", Entero, 0.0F, 10000.0F, 120.0F, "Pa"},
    {"DPVent2", "El salto de presiones", Entero, 0.0F, 500.0F, 120.0F, "Pa"},
    {"DWVent", "Consumo ventilador", Entero, 0.0F, 10000.0F, 120.0F, "W"},
    {"Teminrec", "Temp.min acción by-pass", Real, -30.0F, 50.0F, 15.0F, "ºC"},
    {"Temaxrec", "Temp.max acción by-pass", Real, -30.0F, 50.0F, 30.0F, "ºC"},
    {"NEquiposVent", "Nº equipos ventilación", Entero, 1.0F, 50.0F, 30.0F, "nº"},
    {"RendVent", "El rendimiento", Real, 0.3F, 1.0F, 0.6F, ""},
    {"VolumenAcu", "El volumen del acumulador", Entero, 0.0F, 500000.0F, 100.0F, "litros"},
    {"UA", "El valor del UA", Real, 0.0F, 200.0F, 1.0F, "W/K"},
    {"PotIlu", "El valor de la PotIlu/m2", Real, 0.0F, 26.0F, 5.0F, "W/m2"},
    {"EVEIIIlu", "El valor de la EVEIIIlu", Real, 0.0F, 11.0F, 5.0F, ""},
    {"Tbaja", "La temperatura mínima depósito", Entero, 45.0F, 90.0F, 45.0F, "ºC"},
    {"Talta", "La temperatura máxima depósito", Entero, 46.0F, 90.0F, 60.0F, "ºC"},
    {"PotACS", "La potencia térmica ACS", Real, 0.01F, 99999.0F, 24.0F, "kW"},
    {"Rend1_2", "El rendimiento", Real, 0.5F, 1.0F, 0.95F, ""},
    {"Rend8", "El rendimiento", Real, 0.5F, 8.0F, 3.0F, ""},
    {"RendV", "El rendimiento", Real, 0.5F, 1.0F, 0.6F, ""},
    {"RendB", "El rendimiento", Real, 0.3F, 1.0F, 0.6F, ""},
    {"PotBCACS", "La potencia de la BCACS", Real, 0.01F, 99999.0F, 10.0F, "kW"},
    {"ConBCACS", "La potencia consumida de la BCACS", Real, 0.01F, 99999.0F, 4.0F, "kW"},
    {"PotCale", "La potencia de calefacción", Real, 0.01F, 99999.0F, 24.0F, "kW"},
    {"RendCale", "El rendimiento de calefacción", Real, 0.6F, 1.2F, 0.95F, ""},
    {"PotBCCale", "La potencia de BC calefacción", Real, 0.01F, 99999.0F, 10.0F, "kW"},
    {"ConBCCale", "La potencia consumida de la BCCale", Real, 0.01F, 99999.0F, 4.0F, "kW"},
    {"PotElecCale", "La potencia eléctrica calefacción", Real, 0.01F, 99999.0F, 2.0F, "kW"},
    {"ConElecCale", "La potencia eléctrica consumida en calefacción", Real, 0.01F, 99999.0F, 2.0F,
     "kW"},
    {"RendGeneral", "El rendimiento", Real, 0.6F, 6.0F, 1.0F, ""},
    {"QTRef", "La potencia térmica total en refrigeración", Real, 0.01F, 99999.0F, 2.0F, "kW"},
    {"QSRef", "La potencia térmica sensible en refrigeración", Real, 0.01F, 99999.0F, 2.0F, "kW"},
    {"CSRef", "La potencia térmica consumida en refrigeración", Real, 0.01F, 99999.0F, 2.0F, "kW"},
    {"QTCal", "La potencia térmica total en calefacción", Real, 0.0F, 99999.0F, 2.0F, "kW"},
    {"CTCal", "La potencia térmica total en calefacción", Real, 0.0F, 99999.0F, 2.0F, "kW"},
    {"Valor", "El valor", Real, -kSinLimite, kSinLimite, 1.0F, ""},
    {"DormitoriosDobles", "El nº de dormitorios dobles", Entero, 0.0F, 1e+09F, 1.0F, ""},
    {"DormitoriosSimples", "El nº de dormitorios simples", Entero, 0.0F, 1e+09F, 1.0F, ""},
    {"EstarComedor", "El nº de estar/Comedor", Entero, 0.0F, 1e+09F, 1.0F, ""},
    {"CuartoBano", "El nº de cuartos de baño", Entero, 0.0F, 1e+09F, 1.0F, ""},
    {"Cocina", "La superficie de la cocina", Real, 0.0F, 1e+09F, 10.0F, "m2"},
    {"NViviendas", "El nº de viviendas", Entero, 0.0F, 1e+09F, 1.0F, ""},
    {"Puente", "La pérdida lineal del puente", Real, -1.0F, 2.0F, 0.3F, "W/mK"},
    {"CoefVinfCaja", "La infiltración de la caja de persianas", Real, 0.0F, 5.0F, 1.0F, "m3/hm"},
    {"CoefUCaja", "El coef. de transferencia de calor de la caja de persianas", Real, 0.0F, 5.0F,
     2.0F, "W/m2K"},
    {"Permeabilidad", "La permeabilidad de la ventana", Entero, 0.0F, 5000.0F, 27.0F, "m3/hm2"},
    {"HE", "El coef. de convección-radiación exterior", Real, 0.0F, 9999.0F, 10.0F, "W/m2K"},
    {"HI", "El coef. de convección-radiación interior", Real, 0.0F, 9999.0F, 10.0F, "W/m2K"},
    {"Den", "La densidad", Entero, 1.0F, 9999.0F, 1000.0F, "kg/m3"},
    {"CP", "El calor específico", Entero, 1.0F, 9999.0F, 1000.0F, "J/kgK"},
    {"K", "La conductividad", Real, 1e-05F, 9999.0F, 1.0F, "W/mK"},
    {"Resistcapa", "La resistencia térmica de la capa", Real, 1e-05F, 9999.0F, 1.0F, "m2K/W"},
    {"Espesor", "El espesor", Real, 1e-05F, 9999.0F, 0.01F, "m"},
    {"EspesorTerreno", "El espesor", Real, 1e-05F, 9999.0F, 0.2F, "m"},
    {"ResisvT", "La resistencia al paso vapor", Real, 1e-05F, 9999.0F, 0.01F, "MNs/gm"},
    {"LongPer", "La longPer", Real, 1e-05F, 9999.0F, 0.2F, "m"},
    {"EspesorNuevo", "El espesor", Real, 1e-05F, 1.0F, 0.1F, "m"},
    {"CaudalV", "El caudal", Entero, 0.0F, 500000.0F, 300.0F, "m3/h"},
    {"VEEI", "El VEEI", Real, 0.0F, 20.0F, 6.0F, ""},
    {"Forjado", "El espesor del forjado", Real, 0.1F, 0.5F, 0.2F, "m"},
    {"AnchuraPilar", "La anchura del pilar", Real, 0.1F, 0.5F, 0.3F, "m"},
    {"Consumo_agua_litros_dias", "El consumo de agua al día", Entero, 0.0F, 1e+07F, 100.0F,
     "l/dia"},
    {"Porcentaje_solar", "El porcentaje solar", Real, 0.0F, 100.0F, 50.0F, "%"},
    {"kWh_ano_Fotovoltaico", "La aportación fotovoltáica", Entero, 0.0F, 1e+07F, 0.0F, "kWh/ano"},
    {"EfiRecuperador", "La eficiencia del recuperador", Entero, 0.0F, 100.0F, 75.0F, "%"},
    {"EfiRecuperadorEntal", "La eficiencia del recuperador", Entero, 0.0F, 100.0F, 25.0F, "%"},
    {"ERelaMasa", "La relación masas de aire del recuperador", Real, 0.0F, 1.0F, 1.0F, ""},
    {"NEquipos", "El nº de equipos", Entero, 0.0F, 1e+09F, 1.0F, ""},
    {"PerCalor_m", "La pérdida de calor por metro", Real, 0.0F, 10.0F, 1.0F, "W/m"},
    {"PerDeposito", "La pérdida de calor ", Real, 0.0F, 1000.0F, 1.0F, "W"},
    {"Perextint_m", "La pérdida de eficiencia por metro", Real, 0.0F, 10.0F, 1.0F, "%"},
    {"NEmisores", "El nº de emisores", Entero, 0.0F, 1e+09F, 1.0F, ""},
    {"LD", "Relación altura/diámetro para el depósito (esbeltez)", Real, 0.1F, 10.0F, 1.0F, ""},
    {"TextCamb", "La temp. exterior cambio Bomba Calor a Caldera", Real, -30.0F, 30.0F, 7.0F, "ºC"},
    {"TminFreeCooling", "La temperatura mínima FreeCooling", Entero, 10.0F, 20.0F, 14.0F, "ºC"},
    {"TminImp", "La temperatura mínima impulsion", Entero, 10.0F, 20.0F, 14.0F, "ºC"},
    {"HRmin", "La humdedad mínima del local", Entero, 10.0F, 50.0F, 30.0F, "%"},
});

// Lo que se ha tecleado, según la conversión a real y a entero.
enum class Tecleado { Cifras, Decimales, Letra, Cero };

// Un cero en cualquiera de sus formas: "0", "-0.00", "0.0000000000".
bool EsCero(std::string_view texto) {
  texto = SinBlancos(texto);
  if (!texto.empty() && (texto[0] == '-' || texto[0] == '+')) texto.remove_prefix(1);
  bool hayCero = false;
  int puntos = 0;
  for (const char c : texto) {
    if (c == '0')
      hayCero = true;
    else if (c == '.')
      ++puntos;
    else
      return false;
  }
  return hayCero && puntos <= 1;
}

Tecleado Clasificar(std::string_view texto, double real, long entero) {
  if (real == 0.0) return EsCero(texto) ? Tecleado::Cero : Tecleado::Letra;
  return real == static_cast<double>(entero) ? Tecleado::Cifras : Tecleado::Decimales;
}

std::string ConUnidad(float valor, std::string_view unidad) {
  std::string salida = General(valor);
  if (!unidad.empty()) salida.append(" ").append(unidad);
  return salida;
}

std::string Explicacion(const CampoCatalogo& campo, float tomado) {
  return std::string(campo.texto) + ", debe estar entre " + ConUnidad(campo.minimo, campo.unidad) +
         " y " + ConUnidad(campo.maximo, campo.unidad) +
         ", se toma un valor de: " + ConUnidad(tomado, campo.unidad);
}

}  // namespace

const CampoCatalogo* BuscarCampo(std::string_view clave) {
  const auto it = std::find_if(kCampos.begin(), kCampos.end(),
                               [clave](const CampoCatalogo& c) { return c.clave == clave; });
  return it == kCampos.end() ? nullptr : &*it;
}

float ComprobarValor(std::string_view texto, std::string_view clave, Mensajes& mensajes) {
  static constexpr CampoCatalogo kNinguno{};
  const CampoCatalogo* encontrado = BuscarCampo(clave);
  const CampoCatalogo& campo = encontrado != nullptr ? *encontrado : kNinguno;

  std::string conPunto(texto);
  std::replace(conPunto.begin(), conPunto.end(), ',', '.');
  const double real = RealInicial(conPunto);
  const long entero = EnteroInicial(conPunto);
  float valor = static_cast<float>(real) + 0.0F;  // "-0.00" es 0, sin signo
  const auto tomar = [&](float nuevo, const char* titulo) {
    valor = nuevo;
    mensajes.Avisar(titulo, Explicacion(campo, valor));
  };

  const Tecleado tecleado = Clasificar(conPunto, real, entero);
  if (campo.tipo == Entero && tecleado == Tecleado::Decimales)
    tomar(static_cast<float>(entero), "Se espera un nº entero y no un real");
  else if (campo.tipo == Entero && tecleado == Tecleado::Letra)
    tomar(campo.sustitucion, "Se espera un nº entero y no una letra");
  else if (campo.tipo == Real && tecleado == Tecleado::Letra)
    tomar(campo.sustitucion, "Se espera un nº real y no una letra");

  // El valor de sustitución de algún campo se sale de sus propios límites, y así se queda.
  if (valor < campo.minimo)
    tomar(campo.sustitucion, "Se espera un mayor o igual al mínimo");
  else if (valor > campo.maximo)
    tomar(campo.sustitucion, "Se espera un menor o igual al máximo");
  return valor;
}

float ValorSinComprobar(std::string_view texto, Mensajes& mensajes) {
  if (texto.empty() || texto == "0" || texto == "00") return 0.0F;
  return ComprobarValor(texto, "Cualquiera", mensajes);
}

}  // namespace novex
