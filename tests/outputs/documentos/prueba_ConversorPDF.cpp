#include "outputs/documentos/ConversorPDF.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdlib>

#include "base/FicheroSeguro.h"
#include "base/Proceso.h"
#include "files/CarpetaTemporal.h"
#include "files/ImagenPrueba.h"

namespace novex {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

// Un programa de PDF de mentira: apunta sus argumentos, uno por línea, y escribe un PDF en el
// último.
constexpr const char* kApuntar =
    "for a in \"$@\"; do printf '%s\\n' \"$a\"; pdf=$a; done > \"$0.argumentos\"\n"
    "printf '%%PDF-1.7 hecho' > \"$pdf\"\n";

class ConversorDePDF : public testing::Test {
 protected:
  void SetUp() override {
    fs::create_directories(carpeta / "programa/bmp/wkhtmltopdf");
    fs::create_directories(carpeta / "salida");
    EscribirFichero(html,
                    "<!DOCTYPE html><html><head><meta charset=\"utf-8\"></head>"
                    "<body><p>Certificado de Ñ</p></body></html>");
  }
  fs::path Guion(const std::string& lineas, const std::string& nombre = "herramienta") const {
    const fs::path ruta = carpeta / nombre;
    EscribirFichero(ruta, "#!/bin/sh\n" + lineas);
    fs::permissions(ruta, fs::perms::owner_all);
    return ruta;
  }
  std::vector<std::string> Apuntados(const fs::path& guion) const {
    std::vector<std::string> lineas(1);
    for (const char c : LeerFichero(guion.string() + ".argumentos"))
      if (c == '\n')
        lineas.emplace_back();
      else
        lineas.back() += c;
    lineas.pop_back();
    return lineas;
  }
  // Los nombres que hay junto al PDF, sin el documento.
  std::size_t Sobrantes() const {
    std::size_t n = 0;
    for (const auto& entrada : fs::directory_iterator(carpeta / "salida"))
      n += entrada.path() != html && entrada.path() != pdf;
    return n;
  }

  pruebas::CarpetaTemporal carpeta;
  fs::path html = carpeta / "salida/casa.html";
  fs::path pdf = carpeta / "salida/casa.pdf";
  PieDocumento pie{"30/09/2026", "9872023VH5797S0001WX"};
};

TEST_F(ConversorDePDF, ArgumentosDeWkhtmltopdf) {
  const auto programa = Guion(kApuntar);
  const auto r = ConversorWkhtmltopdf(programa).Convertir(html, pdf, {"1 \"de\" mayo", ""});
  ASSERT_TRUE(r.hecho) << r.mensaje;
  EXPECT_EQ(LeerFichero(pdf), "%PDF-1.7 hecho");
  const auto argumentos = Apuntados(programa);
  EXPECT_THAT(argumentos,
              ElementsAre("--enable-local-file-access", "--footer-font-name", "Calibri",
                          "--footer-font-size", "8", "--footer-left", "Fecha 1 \"de\" mayo",
                          "--footer-center", "Ref. Catastral ", "--footer-right",
                          "Pagina [page] de [toPage]", "--load-error-handling", "ignore",
                          html.string(), testing::_));
  // Al lado, para renombrarlo, y no con su nombre.
  EXPECT_EQ(fs::path(argumentos.back()).parent_path().parent_path(),
            fs::canonical(pdf.parent_path()));
  EXPECT_EQ(Sobrantes(), 0U);
  // Un wkhtmltopdf antiguo no conoce los ficheros locales.
  const auto antiguo = Guion(std::string("if [ \"$1\" = --enable-local-file-access ]; then\n"
                                         "echo \"Unknown long argument $1\" >&2; exit 1; fi\n") +
                             kApuntar);
  EXPECT_TRUE(ConversorWkhtmltopdf(antiguo).Convertir(html, pdf, pie).hecho);
  EXPECT_EQ(Apuntados(antiguo).front(), "--footer-font-name");
}

TEST_F(ConversorDePDF, UnFalloNoTocaElPdfAnteriorNiDejaRestos) {
  EscribirFichero(pdf, "el anterior");
  const std::pair<const char*, const char*> casos[] = {
      {"printf '%%PDF-1.7 a med' > \"$4\"; echo 'Aviso' >&2; printf 'No hay letra\\n\\n' >&2; exit "
       "1",
       "No hay letra"},
      {"echo 'por la salida'; exit 2", "por la salida"},
      {"exit 9", "código 9"},
      {"kill -KILL $$", "señal 9"},
      {"exit 0", "no ha dejado ningún PDF"},
      {"echo 'esto no es' > \"$4\"", "no ha dejado ningún PDF"},
      {"printf 'mal\\351' >&2; exit 1", "malé"}};
  for (const auto& [lineas, motivo] : casos) {
    const auto r = ConversorWeasyPrint(Guion(lineas)).Convertir(html, pdf, pie);
    EXPECT_FALSE(r.hecho) << lineas;
    EXPECT_THAT(r.mensaje, HasSubstr("herramienta")) << lineas;
    EXPECT_THAT(r.mensaje, HasSubstr(motivo)) << lineas;
    EXPECT_EQ(LeerFichero(pdf), "el anterior") << lineas;
    EXPECT_TRUE(fs::exists(html));
    EXPECT_EQ(Sobrantes(), 0U) << lineas;
  }
  const auto colgado = ConversorWeasyPrint(Guion("sleep 60"), std::chrono::seconds(1));
  EXPECT_THAT(colgado.Convertir(html, pdf, pie).mensaje, HasSubstr("no ha acabado en 1 s"));
  EXPECT_EQ(LeerFichero(pdf), "el anterior");
  const auto ausente = ConversorWeasyPrint(carpeta / "no hay").Convertir(html, pdf, pie);
  EXPECT_THAT(ausente.mensaje, HasSubstr("no existe"));
}

TEST_F(ConversorDePDF, DondeNoSePuedeEscribir) {
  const ConversorWeasyPrint conversor(Guion(kApuntar));
  EXPECT_THAT(conversor.Convertir(carpeta / "no.html", pdf, pie).mensaje, HasSubstr("no.html"));
  const auto sinCarpeta = conversor.Convertir(html, carpeta / "no hay/casa.pdf", pie);
  EXPECT_FALSE(sinCarpeta.hecho);
  EXPECT_THAT(sinCarpeta.mensaje, HasSubstr("No se pudo escribir el PDF"));
  fs::create_directories(pdf / "dentro");
  const auto ocupado = conversor.Convertir(html, pdf, pie);
  EXPECT_FALSE(ocupado.hecho);
  EXPECT_THAT(ocupado.mensaje, HasSubstr("No se pudo escribir el PDF"));
  EXPECT_EQ(Sobrantes(), 0U);
  EXPECT_EQ(CadenaCss("Ref. Ñ 1"), "\"Ref. Ñ 1\"");
  EXPECT_EQ(CadenaCss("a\"b\\c"), "\"a\\22 b\\5c c\"");
  EXPECT_EQ(CadenaCss("a\r\nb\x7F"), "\"a\\d \\a b\\7f \"");
  EXPECT_EQ(CadenaCss("</style>"), "\"\\3c /style>\"");
  EXPECT_EQ(CadenaCss(std::string_view("a\0b", 3)),
            "\"a\xEF\xBF\xBD"
            "b\"");
  EXPECT_EQ(CadenaCss("\xE9"), "\"é\"");
}

// Cambia el PATH mientras dura.
class ConPath {
 public:
  explicit ConPath(const std::string& path) {
    if (const char* antes = std::getenv("PATH")) antes_ = antes;
    ::setenv("PATH", path.c_str(), 1);
  }
  ConPath(const ConPath&) = delete;
  ConPath& operator=(const ConPath&) = delete;
  ~ConPath() { ::setenv("PATH", antes_.c_str(), 1); }

 private:
  std::string antes_;
};

TEST_F(ConversorDePDF, SeEligeElQueHay) {
  const EspacioTrabajo espacio{carpeta / "programa"};
  {
    const ConPath path((carpeta / "salida").string());
    const auto r = ElegirConversorPDF(espacio)->Convertir(html, pdf, pie);
    EXPECT_FALSE(r.hecho);
    EXPECT_THAT(r.mensaje, HasSubstr("No se encuentra ningún programa para hacer el PDF: "));
    EXPECT_TRUE(fs::exists(html));
  }
  const std::string interprete = ":/usr/bin:/bin";
  const ConPath path((carpeta / "").string() + interprete);
  const auto weasyprint = Guion(kApuntar, "weasyprint");
  EXPECT_TRUE(ElegirConversorPDF(espacio)->Convertir(html, pdf, pie).hecho);
  EXPECT_THAT(Apuntados(weasyprint), ElementsAre("-s", testing::_, html.string(), testing::_));
  const auto puesto = Guion(kApuntar, "programa/bmp/wkhtmltopdf/wkhtmltopdf");
  fs::remove(weasyprint.string() + ".argumentos");
  EXPECT_TRUE(ElegirConversorPDF(espacio)->Convertir(html, pdf, pie).hecho);
  EXPECT_TRUE(fs::exists(puesto.string() + ".argumentos"));
  EXPECT_FALSE(fs::exists(weasyprint.string() + ".argumentos"));
}

// Lo que dice un programa de poppler de un PDF.
std::string Mirar(const char* programa, const std::vector<std::string>& argumentos) {
  return EjecutarProceso({BuscarPrograma(programa), argumentos, {}}).salida;
}

TEST_F(ConversorDePDF, WeasyPrintDeVerdad) {
  const fs::path weasyprint = BuscarPrograma("weasyprint");
  if (weasyprint.empty() || BuscarPrograma("pdftotext").empty())
    GTEST_SKIP() << "sin weasyprint o sin poppler";
  const fs::path rara = carpeta / "salida/-a b' \"ñ\" #1?x=%20&[page]";
  fs::create_directories(rara);
  EscribirFichero(rara / "foto#.png", pruebas::Png());
  EscribirFichero(rara / "-c#d?.html",
                  "<!DOCTYPE html><html><head><meta charset=\"utf-8\"></head><body>"
                  "<p>Calificación energética</p><img src=\"foto%23.png\">"
                  "<p style=\"page-break-before: always\">Segunda</p></body></html>");
  const fs::path salida = rara / "-c#d?.pdf";
  const PieDocumento malo{"\\9 \"; }</style>", "R\n\"} @page { size: A5 }"};
  const auto r = ConversorWeasyPrint(weasyprint).Convertir(rara / "-c#d?.html", salida, malo);
  ASSERT_TRUE(r.hecho) << r.mensaje;
  const std::string texto = Mirar("pdftotext", {"-layout", salida.string(), "-"});
  for (const char* parte :
       {"Calificación energética", "Segunda", "Fecha \\9 \"; }</style>",
        "Ref. Catastral R \"} @page { size: A5 }", "Pagina 1 de 2", "Pagina 2 de 2"})
    EXPECT_THAT(texto, HasSubstr(parte));
  EXPECT_THAT(Mirar("pdfinfo", {salida.string()}), HasSubstr("(A4)"));
  EXPECT_THAT(Mirar("pdfimages", {"-list", salida.string()}), HasSubstr("image"));
  // Un camino relativo vale igual.
  const fs::path aqui = fs::current_path();
  fs::current_path(rara);
  EXPECT_TRUE(ConversorWeasyPrint(weasyprint).Convertir("-c#d?.html", "-otro.pdf", pie).hecho);
  fs::current_path(aqui);
  EXPECT_TRUE(fs::exists(rara / "-otro.pdf"));
}

}  // namespace
}  // namespace novex
