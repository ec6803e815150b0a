#include "improvements/MedidasPredefinidas.h"

#include <algorithm>
#include <array>
#include <vector>

namespace novex {
namespace {

constexpr const char* kConcreto = "CasoConcreto";
constexpr const char* kPellet = "Biomasa_Pellet";
constexpr const char* kElectricidad = "Electricidad";

// Niveles de aislamiento: resistencia añadida, m2K/W, y su espesor en el texto.
struct Nivel {
  float R;
  const char* espesor;
};
constexpr std::array<Nivel, 3> kNiveles = {{{0.5F, "2"}, {1, "4"}, {1.5F, "6"}}};

std::string Aislamiento(const Nivel& nivel, const char* donde) {
  return std::string("Añadir ") + nivel.espesor + " cm de aislamiento conductividad 0,04 W/m2K a " +
         donde;
}

// Ventanas: vidrio, marco y permeabilidad.
struct Ventana {
  float U, marco, permeabilidad;
  const char *vidrio, *textoMarco;
};
constexpr std::array<Ventana, 2> kVentanas = {
    {{2.5F, 2.2F, 9, "Vidrio doble bajo emisivo U=2,5 W/m2K", "Marco madera U=2,2 W/m2K"},
     {1.8F, 1.8F, 3, "Vidrio doble bajo emisivo < 0,03  U=1,8 W/m2K",
      "Marco PVC 3 cámaras U=1,8 W/m2K"}}};
constexpr const char* kPermeabilidad9 = "Permebilidad huecos 9 (m3/hm2 100Pa)";
constexpr const char* kPermeabilidad3 = "Permebilidad huecos 3 (m3/hm2 100Pa)";
constexpr const char* kMas = "  +   ";

// Los tres lugares que se aíslan.
enum Donde { EnCubiertas = 1, EnMuros = 2, EnSuelos = 4 };
Forzados Aislar(int donde, float R) {
  Forzados f = SinForzar();
  if (donde & EnCubiertas) f.ExtraRCubiertas = R;
  if (donde & EnMuros) f.ExtraRMuros = R;
  if (donde & EnSuelos) f.ExtraRSuelos = R;
  return f;
}

class Tabla {
 public:
  std::vector<MedidaPredefinida> medidas;

  void Aislamientos() {
    struct Fila {
      std::array<int, 3> codigos;
      int donde;
      const char* texto;
    };
    for (const Fila& fila :
         {Fila{{3, 5, 6}, EnCubiertas, "las cubiertas"}, Fila{{9, 11, 12}, EnMuros, "los muros"},
          Fila{{15, 17, 18}, EnSuelos, "los suelos"},
          Fila{{21, 23, 24}, EnCubiertas | EnMuros | EnSuelos, "las cubiertas, muros y suelos"}})
      for (std::size_t n = 0; n < kNiveles.size(); ++n)
        Poner(fila.codigos[n], PaginaMedida::Demanda, Aislamiento(kNiveles[n], fila.texto),
              Aislar(fila.donde, kNiveles[n].R));
  }

  void Puentes() {
    Forzar(26, "Puentes térmicos. Aislamiento contínuo en fachada", &Forzados::PuentesForzados, 1);
    Forzar(27, "Puentes térmicos. Pilares aislados", &Forzados::PuentesForzados, 3);
    Forzar(29, "Puentes térmicos. Pilares aislados y huecos con aislamiento hasta el marco",
           &Forzados::PuentesForzados, 2);
  }

  void Huecos() {
    for (std::size_t i = 0; i < kVentanas.size(); ++i) {
      const Ventana& v = kVentanas[i];
      const int n = static_cast<int>(i);
      Forzar(31 + n, v.vidrio, &Forzados::UCristalForzado, v.U);
      Forzar(34 + n, v.textoMarco, &Forzados::UMarcoForzado, v.marco);
      Forzados ambos = SinForzar();
      ambos.UCristalForzado = v.U;
      ambos.UMarcoForzado = v.marco;
      Poner(37 + n, PaginaMedida::Demanda, std::string(v.vidrio) + " y " + v.textoMarco, ambos);
    }
    Forzar(40, "Factor solar vidrio 0,5", &Forzados::FSCristalForzado, 0.5F);
    Forzar(41, "Factor solar vidrio 0,25", &Forzados::FSCristalForzado, 0.25F);
    Forzar(43, "Factor solar modificado sólo verano vidrio (toldos o similares) 0,5",
           &Forzados::FactorSolarVerano, 0.5F);
    Forzar(44, "Factor solar modificado sólo verano vidrio (toldos o similares) 0,25",
           &Forzados::FactorSolarVerano, 0.25F);
    Forzar(46, kPermeabilidad9, &Forzados::PermeabilidadForzada, 9.0F);
    Forzar(47, kPermeabilidad3, &Forzados::PermeabilidadForzada, 3.0F);
  }

  void Aire() {
    constexpr std::array<int, 3> kEficiencias = {75, 84, 93};
    for (std::size_t i = 0; i < kEficiencias.size(); ++i)
      Forzar(48 + static_cast<int>(i),
             "Recuperador Efi.térmica=" + std::to_string(kEficiencias[i]) + "% con by-pass",
             &Forzados::EficienciaRecuperadorForzada, static_cast<float>(kEficiencias[i]));
  }

  void Fotovoltaicas() {
    constexpr std::array<int, 4> kPicos = {1, 3, 5, 10};
    for (std::size_t i = 0; i < kPicos.size(); ++i) {
      Forzados f = SinForzar();
      f.ExtraPotPicoFV = static_cast<float>(kPicos[i]);
      Poner(57 + static_cast<int>(i), PaginaMedida::Equipos,
            "Instalación Fotovoltáica extra de " + std::to_string(kPicos[i]) + " kW pico", f);
    }
  }

  void Generadores() {
    const auto calefaccion = &Forzados::CasoCalefaccion;
    const auto frio = &Forzados::CasoRefrigeracion;
    const auto acs = &Forzados::CasoACS;
    Generador(51, "Instalación Calefacción. Caldera rendimiento estacional 75%. Biomasa.",
              calefaccion, kPellet, 0.75F);
    Generador(101, "Instalación Calefacción. Caldera rendimiento estacional 85%. Biomasa.",
              calefaccion, kPellet, 0.85F);
    Generador(52,
              "Instalación Calefacción bomba calor. COP estacional 3. Combustible:Electricidad.",
              calefaccion, kElectricidad, 3);
    Generador(100,
              "Instalación Calefacción bomba calor. COP estacional 3,5. Combustible:Electricidad.",
              calefaccion, kElectricidad, 3.5F);
    Generador(53, "Instalación Refrigeración. EER estacional 4. Combustible:Electricidad.", frio,
              kElectricidad, 2.8F);
    Generador(99, "Instalación Refrigeración. EER estacional 4,5. Combustible:Electricidad.", frio,
              kElectricidad, 3.15F);
    Generador(54, "Instalación ACS. Caldera rendimiento estacional 75%. Combustible:Biomasa.", acs,
              kPellet, 0.75F);
    Generador(98, "Instalación ACS. Caldera rendimiento estacional 85%. Combustible:Biomasa.", acs,
              kPellet, 0.85F);
    Generador(56,
              "Instalación ACS. Bomba de calor aire-agua. COP estacional 3. "
              "Combustible:Electricidad.",
              acs, kElectricidad, 3);
    Generador(96,
              "Instalación ACS. Bomba de calor aire-agua. COP estacional 3,5. "
              "Combustible:Electricidad.",
              acs, kElectricidad, 3.5F);
    Generador(55, "Instalación ACS. Aporte solar térmico 70%.", acs, "60", 1.05F);
    Generador(97, "Instalación ACS. Aporte solar térmico 80%.", acs, "70", 1);
  }

  void Combinadas() {
    struct Fila {
      int codigo, donde, puentes;
      const char *texto, *textoPuentes;
    };
    constexpr const char* kMuros = "los muros";
    constexpr const char* kMurosCubiertas = "los muros y cubiertas";
    const std::array<Fila, 4> filas = {
        {{61, EnMuros, 0, kMuros, ""},
         {70, EnMuros | EnCubiertas, 0, kMurosCubiertas, ""},
         {79, EnMuros | EnCubiertas, 4, kMurosCubiertas,
          "Puentes térmicos. Pilares aislados y huecos aislamiento hasta el marco"},
         {88, EnMuros | EnCubiertas, 1, kMurosCubiertas,
          "Puentes térmicos. Aislamiento contínuo en fachada"}}};
    for (const Fila& fila : filas)
      for (std::size_t n = 0; n < kNiveles.size(); ++n)
        for (std::size_t v = 0; v < kVentanas.size(); ++v) {
          Forzados f = Aislar(fila.donde, kNiveles[n].R);
          f.PuentesForzados = fila.puentes;
          f.UCristalForzado = kVentanas[v].U;
          f.UMarcoForzado = kVentanas[v].marco;
          f.PermeabilidadForzada = kVentanas[v].permeabilidad;
          std::string texto = Aislamiento(kNiveles[n], fila.texto) + kMas;
          if (fila.puentes != 0) texto += std::string(fila.textoPuentes) + kMas;
          texto += std::string(kVentanas[v].vidrio) + " y " + kVentanas[v].textoMarco + kMas +
                   kPermeabilidad9;
          // Tres códigos por nivel: el tercero no se usa.
          Poner(fila.codigo + 3 * static_cast<int>(n) + static_cast<int>(v),
                PaginaMedida::CombinacionesDemanda, std::move(texto), f);
        }
  }

 private:
  void Poner(int codigo, PaginaMedida pagina, std::string texto, const Forzados& forzados) {
    medidas.push_back({codigo, pagina, std::move(texto), forzados});
  }
  template <class Valor>
  void Forzar(int codigo, std::string texto, Valor Forzados::*campo, Valor valor) {
    Forzados f = SinForzar();
    f.*campo = valor;
    Poner(codigo, PaginaMedida::Demanda, std::move(texto), f);
  }
  void Generador(int codigo, const char* texto, ServicioForzado Forzados::*servicio,
                 const char* combustible, float rendimiento) {
    Forzados f = SinForzar();
    f.*servicio = {kConcreto, combustible, rendimiento};
    Poner(codigo, PaginaMedida::Equipos, texto, f);
  }
};

std::vector<MedidaPredefinida> CrearTabla() {
  Tabla tabla;
  tabla.Aislamientos();
  tabla.Puentes();
  tabla.Huecos();
  tabla.Aire();
  tabla.Fotovoltaicas();
  tabla.Generadores();
  tabla.Combinadas();
  std::sort(tabla.medidas.begin(), tabla.medidas.end(),
            [](const auto& a, const auto& b) { return a.codigo < b.codigo; });
  return std::move(tabla.medidas);
}

}  // namespace

std::span<const MedidaPredefinida> MedidasPredefinidas() {
  static const std::vector<MedidaPredefinida> medidas = CrearTabla();
  return medidas;
}

const MedidaPredefinida* MedidaDeCodigo(int codigo) {
  for (const MedidaPredefinida& m : MedidasPredefinidas())
    if (m.codigo == codigo) return &m;
  return nullptr;
}

float ParteSolarForzada(const ServicioForzado& servicio) {
  if (!servicio.Concreto()) return 0;
  if (servicio.combustible == "60") return 0.6F;
  return servicio.combustible == "70" ? 0.7F : 0.0F;
}

Forzados SinForzar() {
  Forzados f;
  f.CasoACS.combustible = f.CasoCalefaccion.combustible = "GasNatural";
  f.CasoRefrigeracion.combustible = kElectricidad;
  return f;
}

}  // namespace novex
