#pragma once

#include <chrono>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "base/EspacioTrabajo.h"

namespace novex {

/// Lo que lleva el pie de todas las páginas, además de su número.
struct PieDocumento {
  std::string fecha;       ///< del proyecto
  std::string referencia;  ///< catastral
};

/// Si se ha hecho el PDF, y si no, por qué.
struct ResultadoPDF {
  bool hecho = false;
  std::string mensaje;  ///< texto para el usuario; vacío si se ha hecho
};

/// Puerto de lo que pasa un documento HTML a PDF.
class ConversorPDF {
 public:
  virtual ~ConversorPDF() = default;
  /// Hace el PDF de un documento. Se hace al lado y se renombra: si algo falla, el PDF que hubiera
  /// sigue como estaba, y el HTML no se toca nunca. Los caminos pueden tener cualquier carácter.
  virtual ResultadoPDF Convertir(const std::filesystem::path& html,
                                 const std::filesystem::path& pdf,
                                 const PieDocumento& pie) const = 0;
};

/// Lo que se espera a un programa de PDF antes de darlo por colgado.
inline constexpr std::chrono::milliseconds kPlazoPDF = std::chrono::minutes(5);

/// Convierte con un wkhtmltopdf.
class ConversorWkhtmltopdf : public ConversorPDF {
 public:
  /// \param programa su ejecutable \param plazo lo que se le espera
  explicit ConversorWkhtmltopdf(std::filesystem::path programa,
                                std::chrono::milliseconds plazo = kPlazoPDF)
      : programa_(std::move(programa)), plazo_(plazo) {}
  ResultadoPDF Convertir(const std::filesystem::path& html, const std::filesystem::path& pdf,
                         const PieDocumento& pie) const override;

 private:
  std::filesystem::path programa_;
  std::chrono::milliseconds plazo_;
};

/// Convierte con WeasyPrint, que toma el pie de una hoja de estilo.
class ConversorWeasyPrint : public ConversorPDF {
 public:
  /// \param programa su ejecutable \param plazo lo que se le espera
  explicit ConversorWeasyPrint(std::filesystem::path programa,
                               std::chrono::milliseconds plazo = kPlazoPDF)
      : programa_(std::move(programa)), plazo_(plazo) {}
  ResultadoPDF Convertir(const std::filesystem::path& html, const std::filesystem::path& pdf,
                         const PieDocumento& pie) const override;

 private:
  std::filesystem::path programa_;
  std::chrono::milliseconds plazo_;
};

/// Un texto como cadena de CSS, con sus comillas: lo que se vea será el texto, sea cual sea.
std::string CadenaCss(std::string_view texto);

/// El conversor de esta máquina: el wkhtmltopdf que el usuario haya puesto en `bmp/wkhtmltopdf/`
/// de la carpeta de programa, o el WeasyPrint del PATH. Nunca es nulo: sin ninguno de los dos,
/// convertir da el mensaje que lo dice.
std::unique_ptr<ConversorPDF> ElegirConversorPDF(const EspacioTrabajo& espacio);

}  // namespace novex
