#include "base/EspacioTrabajo.h"

#include <gtest/gtest.h>

#include "files/CarpetaTemporal.h"

namespace novex {
namespace {

namespace fs = std::filesystem;

TEST(EspacioTrabajo, LaMarcaDelCodigoPostalEligeElClima) {
  const EspacioTrabajo espacio{"/p"};
  EXPECT_EQ(espacio.Clima("D3", ""), fs::path("/p/databaseCTE/ZonaD3.met"));
  EXPECT_EQ(espacio.Clima("alfa3c", "46001"), fs::path("/p/databaseCTE/Zonaalfa3c.met"));
  for (const std::string ano : {"1992", "2002", "2012", "2022"})
    EXPECT_EQ(espacio.Clima("D3", "-" + ano), fs::path("/p/database" + ano + "/ZonaD3.met"));
  // Solo la marca exacta.
  for (const char* otro : {"2022", "-2021", "-20222", "- 2022", "../-2022"})
    EXPECT_EQ(CarpetaClima(otro), "databaseCTE") << otro;
}

TEST(EspacioTrabajo, BuscaLaCarpetaDeProgramaPorOrden) {
  const pruebas::CarpetaTemporal carpeta;
  const fs::path raiz = (carpeta / "").parent_path(), ejecutable = raiz / "bin" / "novex-cli";
  fs::create_directories(raiz / "bin" / "programa");  // sin `database`: no vale
  EXPECT_EQ(BuscarCarpetaPrograma(ejecutable), fs::path());
  fs::create_directories(raiz / "share" / "novex" / "database");
  EXPECT_EQ(BuscarCarpetaPrograma(ejecutable), raiz / "share" / "novex");
  fs::create_directories(raiz / "bin" / "database");
  EXPECT_EQ(BuscarCarpetaPrograma(ejecutable), raiz / "bin");
  fs::create_directories(raiz / "bin" / "programa" / "database");
  EXPECT_EQ(BuscarCarpetaPrograma(ejecutable), raiz / "bin" / "programa");
}

}  // namespace
}  // namespace novex
