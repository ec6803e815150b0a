#include "outputs/documentos/ConversorPDF.h"

#include <fmt/format.h>

#include <array>
#include <cstdint>
#include <fstream>
#include <random>
#include <system_error>
#include <vector>

#include "base/ErrorFichero.h"
#include "base/FicheroSeguro.h"
#include "base/Proceso.h"
#include "base/Texto.h"

namespace novex {
namespace {

namespace fs = std::filesystem;

ResultadoPDF SinHacer(std::string mensaje) {
  return {false, std::move(mensaje)};
}

// Una carpeta al lado del PDF, que se borra al acabar: lo que el programa deje en ella no se ve
// nunca con el nombre definitivo, y renombrarlo no cambia de disco.
class CarpetaProvisional {
 public:
  explicit CarpetaProvisional(const fs::path& carpeta) {
    std::random_device azar;
    ruta_ = carpeta / fmt::format(".pdf_{:08x}{:08x}", azar(), azar());
    if (!fs::create_directory(ruta_))
      throw fs::filesystem_error("ya existe", ruta_, std::make_error_code(std::errc::file_exists));
  }
  CarpetaProvisional(const CarpetaProvisional&) = delete;
  CarpetaProvisional& operator=(const CarpetaProvisional&) = delete;
  ~CarpetaProvisional() {
    std::error_code sinImportancia;
    fs::remove_all(ruta_, sinImportancia);
  }
  fs::path operator/(const char* nombre) const { return ruta_ / nombre; }

 private:
  fs::path ruta_;
};

// La última línea con algo, que es donde un programa dice por qué acaba.
std::string UltimaLinea(const std::string& texto) {
  const std::string_view util = SinBlancosFinales(texto);
  const std::size_t corte = util.find_last_of("\r\n");
  return AUtf8(SinBlancos(corte == std::string_view::npos ? util : util.substr(corte + 1)));
}

std::string MotivoDe(const ResultadoProceso& r, std::chrono::milliseconds plazo) {
  if (!r.Arrancado()) return r.motivo;
  if (r.plazoVencido)
    return fmt::format("no ha acabado en {} s",
                       std::chrono::duration_cast<std::chrono::seconds>(plazo).count());
  if (const std::string linea = UltimaLinea(r.errores); !linea.empty()) return linea;
  if (const std::string linea = UltimaLinea(r.salida); !linea.empty()) return linea;
  if (r.senal != 0) return fmt::format("lo ha parado la señal {}", r.senal);
  return fmt::format("ha acabado con el código {}", r.codigo);
}

bool EsPDF(const fs::path& ruta) {
  std::array<char, 5> cabeza{};
  std::ifstream entrada(ruta, std::ios::binary);
  return entrada.read(cabeza.data(), cabeza.size()) &&
         std::string_view(cabeza.data(), cabeza.size()) == "%PDF-";
}

// Lo que es igual con cualquier programa: `ejecutar` lo llama con la carpeta provisional y el
// camino del PDF que ha de dejar en ella, y da cómo ha ido.
template <class Ejecutar>
ResultadoPDF ConvertirAlLado(const fs::path& programa, const fs::path& html, const fs::path& pdf,
                             std::chrono::milliseconds plazo, Ejecutar ejecutar) {
  std::error_code sinImportancia;
  if (!fs::is_regular_file(html, sinImportancia))
    return SinHacer("No se encuentra el documento \"" + html.string() + "\"");
  const auto noEscrito = [&](const std::string& motivo) {
    return SinHacer("No se pudo escribir el PDF \"" + pdf.string() +
                    "\": compruebe que su carpeta existe y se puede escribir en ella, y que ningún "
                    "programa lo tiene abierto (" +
                    motivo + ")");
  };
  try {
    // Un enlace sigue siendo un enlace: se cambia el fichero al que lleva.
    const fs::path destino = fs::weakly_canonical(fs::absolute(pdf));
    const CarpetaProvisional carpeta(destino.parent_path());
    const fs::path hecho = carpeta / "documento.pdf";
    const ResultadoProceso r = ejecutar(carpeta, hecho);
    if (!r.Bien())
      return SinHacer("No se pudo hacer el PDF con " + programa.filename().string() + ": " +
                      MotivoDe(r, plazo));
    if (!EsPDF(hecho))
      return SinHacer("No se pudo hacer el PDF: " + programa.filename().string() +
                      " no ha dejado ningún PDF");
    fs::rename(hecho, destino);
    return {true, {}};
  } catch (const fs::filesystem_error& error) {
    return noEscrito(error.code().message());
  } catch (const ErrorFichero& error) {
    return noEscrito(error.what());
  }
}

// Un carácter como lo pide CSS; el blanco cierra la secuencia.
void AnadirEscapado(std::string& css, char32_t codigo) {
  css += fmt::format("\\{:x} ", static_cast<std::uint32_t>(codigo));
}

std::string HojaDelPie(const PieDocumento& pie) {
  constexpr std::string_view kLetra = "font: 8pt Calibri, Carlito, \"Liberation Sans\", sans-serif";
  return fmt::format(
      "@charset \"UTF-8\";\n@page {{\n"
      "  @bottom-left {{ content: {1}; {0} }}\n"
      "  @bottom-center {{ content: {2}; {0} }}\n"
      "  @bottom-right {{ content: \"Pagina \" counter(page) \" de \" counter(pages); {0} }}\n}}\n",
      kLetra, CadenaCss("Fecha " + pie.fecha), CadenaCss("Ref. Catastral " + pie.referencia));
}

class SinConversor : public ConversorPDF {
 public:
  explicit SinConversor(fs::path esperado) : esperado_(std::move(esperado)) {}
  ResultadoPDF Convertir(const fs::path& html, const fs::path&,
                         const PieDocumento&) const override {
    return SinHacer(
        "No se encuentra ningún programa para hacer el PDF: instale WeasyPrint o "
        "ponga wkhtmltopdf en \"" +
        esperado_.string() + "\". El documento queda en \"" + html.string() + "\"");
  }

 private:
  fs::path esperado_;
};

}  // namespace

std::string CadenaCss(std::string_view texto) {
  const std::string utf8 = AUtf8(texto);
  std::string_view resto = utf8;
  std::string css = "\"";
  while (!resto.empty()) {
    const auto [codigo, bytes] = PrimerCaracter(resto);
    if (codigo == 0) {
      AnadirUtf8(css, 0xFFFD);
    } else if (codigo < 0x20 || codigo == 0x7F || codigo == '"' || codigo == '\\' ||
               codigo == '<') {
      AnadirEscapado(css, codigo);
    } else {
      css += resto.substr(0, bytes);
    }
    resto.remove_prefix(bytes);
  }
  return css + '"';
}

ResultadoPDF ConversorWkhtmltopdf::Convertir(const fs::path& html, const fs::path& pdf,
                                             const PieDocumento& pie) const {
  return ConvertirAlLado(
      programa_, html, pdf, plazo_, [&](const CarpetaProvisional&, const fs::path& hecho) {
        const LimitesProceso limites{plazo_};
        OrdenProceso orden{programa_, {}, {}};
        orden.argumentos = {
            "--footer-font-name", "Calibri", "--footer-font-size", "8", "--footer-left",
            "Fecha " + pie.fecha, "--footer-center", "Ref. Catastral " + pie.referencia,
            "--footer-right", "Pagina [page] de [toPage]",
            // Una imagen que falta no ha de dejar sin documento.
            "--load-error-handling", "ignore", fs::absolute(html).string(), hecho.string()};
        OrdenProceso conImagenes = orden;
        conImagenes.argumentos.insert(conImagenes.argumentos.begin(), "--enable-local-file-access");
        const ResultadoProceso r = EjecutarProceso(conImagenes, limites);
        // Hasta 0.12.5 leía siempre los ficheros locales, y no conoce la opción.
        const bool antiguo = r.Arrancado() && !r.Bien() &&
                             r.errores.find("enable-local-file-access") != std::string::npos;
        return antiguo ? EjecutarProceso(orden, limites) : r;
      });
}

ResultadoPDF ConversorWeasyPrint::Convertir(const fs::path& html, const fs::path& pdf,
                                            const PieDocumento& pie) const {
  return ConvertirAlLado(
      programa_, html, pdf, plazo_, [&](const CarpetaProvisional& carpeta, const fs::path& hecho) {
        const fs::path hoja = carpeta / "pie.css";
        EscribirFichero(hoja, HojaDelPie(pie));
        return EjecutarProceso(
            {programa_, {"-s", hoja.string(), fs::absolute(html).string(), hecho.string()}, {}},
            {plazo_});
      });
}

std::unique_ptr<ConversorPDF> ElegirConversorPDF(const EspacioTrabajo& espacio) {
  const fs::path puesto = espacio.Imagenes() / "wkhtmltopdf" / "wkhtmltopdf";
  std::error_code sinImportancia;
  if (fs::is_regular_file(puesto, sinImportancia))
    return std::make_unique<ConversorWkhtmltopdf>(puesto);
  if (const fs::path weasyprint = BuscarPrograma("weasyprint"); !weasyprint.empty())
    return std::make_unique<ConversorWeasyPrint>(weasyprint);
  return std::make_unique<SinConversor>(puesto.parent_path());
}

}  // namespace novex
