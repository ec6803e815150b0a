#pragma once

#include <cmath>
#include <string>

#include "files/DatosDerivados.h"
#include "model/Edificio.h"

namespace novex::pruebas {

/// Da valores todos distintos, que se escriben exactos con los decimales pedidos.
class Valores {
 public:
  explicit Valores(int semilla) : n_(semilla) {}
  int Entero() { return ++n_; }
  float Real(int decimales) { return static_cast<float>(++n_ / std::pow(10.0, decimales)); }
  std::string Texto() { return "Línea <ñ & \"5 %\"> nº" + std::to_string(++n_); }

 private:
  int n_;
};

/// Llena todos los campos de un caso en blanco que el fichero de proyecto guarda, con valores
/// distintos de los del caso en blanco. Con semillas distintas los valores lo son.
void LlenarCaso(Edificio& edificio, int semilla);

/// Resultados con todos los valores distintos de 0.
DatosDerivados::Caso ResultadosDePrueba(int semilla);

}  // namespace novex::pruebas
