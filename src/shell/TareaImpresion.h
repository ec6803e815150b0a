#pragma once

#include <atomic>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "calculation/Entorno.h"
#include "model/GestorEdifActivo.h"

namespace novex {

/// Un trabajo largo sobre un proyecto, en otro hilo y con una copia de él: mientras, el proyecto se
/// puede mirar. Sus avisos se guardan para darlos al acabar.
class TareaImpresion {
 public:
  using Trabajo = std::function<void(GestorEdifActivo&, Entorno&)>;
  static constexpr int kAvanceInicial = 100, kAvanceFinal = 10000;
  static constexpr int kSinVuelta = 7000;

  /// Empieza. La copia lleva los resultados de los casos que están calculados.
  TareaImpresion(const GestorEdifActivo& gestor, const EspacioTrabajo& espacio, Trabajo trabajo);
  /// Lo interrumpe y espera a que pare.
  ~TareaImpresion();
  TareaImpresion(const TareaImpresion&) = delete;
  TareaImpresion& operator=(const TareaImpresion&) = delete;

  /// Por dónde va, de 100 a 10000.
  int Avance() const { return avance_; }
  bool Acabada() const { return acabada_; }
  /// Pide que pare, en su siguiente avance. Desde que se escribe el documento ya no para.
  void Cancelar() { cancelar_ = true; }
  bool SePuedeCancelar() const { return avance_ < kSinVuelta; }
  /// Lo demás, solo si ha acabado.
  bool Cancelada() const { return cancelada_; }
  /// Por qué ha fallado; vacío si no.
  const std::string& Fallo() const { return fallo_; }
  const std::vector<Mensaje>& Avisos() const { return mensajes_.recibidos; }

 private:
  void Hacer(const EspacioTrabajo& espacio);

  std::unique_ptr<GestorEdifActivo> copia_;
  Trabajo trabajo_;
  RegistroMensajes mensajes_;
  std::string fallo_;
  bool cancelada_ = false;
  std::atomic<int> avance_{kAvanceInicial};
  std::atomic<bool> cancelar_{false}, acabada_{false};
  std::thread hilo_;
};

/// Copia de un proyecto con los resultados de los casos calculados, que no se repiten.
std::unique_ptr<GestorEdifActivo> CopiarConResultados(const GestorEdifActivo& gestor);

/// Hace de un PDF una imagen por página. \param carpeta donde se dejan
/// \returns sus caminos, en orden; ninguno si la máquina no tiene con qué hacerlas
std::vector<std::filesystem::path> PaginasDePdf(const std::filesystem::path& pdf,
                                                const std::filesystem::path& carpeta);

}  // namespace novex
