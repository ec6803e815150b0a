#include "outputs/RejillaMeses.h"

#include <numeric>

#include "compliance/Meses.h"
#include "outputs/ReglasResultados.h"

namespace novex {

FilaMeses::FilaMeses(const TablaMensual& tabla, double factor) {
  for (std::size_t m = 0; m < mes.size(); ++m) mes[m] = factor * static_cast<double>(tabla[m + 1]);
}

FilaMeses& FilaMeses::operator+=(const FilaMeses& otra) {
  for (std::size_t m = 0; m < mes.size(); ++m) mes[m] += otra.mes[m];
  return *this;
}

FilaMeses& FilaMeses::operator-=(const FilaMeses& otra) {
  for (std::size_t m = 0; m < mes.size(); ++m) mes[m] -= otra.mes[m];
  return *this;
}

double FilaMeses::Ano() const {
  return std::accumulate(mes.begin(), mes.end(), 0.0);
}

RejillaMeses::RejillaMeses(std::string rotulo, std::string esquina, float area)
    : area_(static_cast<double>(area)) {
  tabla_.titulo = std::move(rotulo);
  tabla_.cabeceras = {std::move(esquina)};
  tabla_.cabeceras.insert(tabla_.cabeceras.end(), kMesesCortos.begin(), kMesesCortos.end());
  tabla_.cabeceras.insert(tabla_.cabeceras.end(), {"ANUAL", "ANUAL/m2"});
}

void RejillaMeses::Fila(const char* nombre, const FilaMeses& valores) {
  std::vector<Celda> fila = {nombre};
  for (const double v : valores.mes) fila.push_back(CeldaResultado(v));
  fila.push_back(CeldaResultado(valores.Ano()));
  fila.push_back(area_ > 0.0 ? CeldaResultado(valores.Ano() / area_) : Celda());
  tabla_.filas.push_back(std::move(fila));
}

void RejillaMeses::FilaEnBlanco(const char* nombre) {
  std::vector<Celda> fila(tabla_.cabeceras.size());
  fila.front() = nombre;
  tabla_.filas.push_back(std::move(fila));
}

}  // namespace novex
