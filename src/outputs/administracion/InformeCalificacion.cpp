#include "outputs/administracion/InformeCalificacion.h"

#include "outputs/administracion/EscrituraInforme.h"

namespace novex {
namespace {

constexpr std::array<const char*, 6> kUmbrales = {"A", "B", "C", "D", "E", "F"};

class Calificacion {
 public:
  explicit Calificacion(const CasoCalculado& caso) : caso_(caso), servicios_(*caso.edificio) {}

  void Demanda(XMLNode n) const {
    struct FilaDemanda {
      Indicador indicador;
      const char* escala;
      const char* letra;
    };
    constexpr std::array<FilaDemanda, 2> kFilas = {
        {{Indicador::DemandaCalefaccion, "EscalaCalefaccion", "Calefaccion"},
         {Indicador::DemandaRefrigeracion, "EscalaRefrigeracion", "Refrigeracion"}}};
    for (const FilaDemanda& f : kFilas)
      if (EsLetraDeEscala(LetraMostrada(f.indicador, caso_))) Escala(n, f.escala, f.indicador);
    for (const FilaDemanda& f : kFilas) AnadirLetra(n, f.letra, LetraMostrada(f.indicador, caso_));
  }

  void Unidad(XMLNode n, UnidadEnergia unidad) const {
    const bool residencial = !servicios_.iluminacion;
    const Indicador total = *IndicadorDe(std::nullopt, unidad, residencial);
    Escala(n, "EscalaGlobal", total);
    AnadirLetra(n, "Global", LetraMostrada(total, caso_));
    AnadirLetras(n, servicios_, [&](Servicio s) {
      const auto indicador = IndicadorDe(s, unidad, residencial);
      return indicador ? LetraMostrada(*indicador, caso_) : std::string();
    });
  }

 private:
  void Escala(XMLNode& nodo, const char* etiqueta, Indicador indicador) const {
    XMLNode n = nodo.appendChild(etiqueta);
    const auto& th = caso_.resultado->resultados.escala.th[static_cast<std::size_t>(indicador)];
    for (std::size_t i = 0; i < kUmbrales.size(); ++i) AnadirCifra(n, kUmbrales[i], th[i]);
  }

  const CasoCalculado& caso_;
  ServiciosInforme servicios_;
};

}  // namespace

bool TieneLetrasGlobales(const CasoCalculado& caso) {
  return EsLetraDeEscala(LetraMostrada(Indicador::EPriNoRTotales, caso)) &&
         EsLetraDeEscala(LetraMostrada(Indicador::EmisionesTotales, caso));
}

void AnadirCalificacion(XMLNode& informe, const CasoCalculado& caso) {
  XMLNode n = informe.appendChild("Calificacion");
  const Calificacion calificacion(caso);
  calificacion.Demanda(n.appendChild("Demanda"));
  calificacion.Unidad(n.appendChild("EnergiaPrimariaNoRenovable"), kPrimariaNoRenovable);
  calificacion.Unidad(n.appendChild("EmisionesCO2"), kEmisiones);
}

}  // namespace novex
