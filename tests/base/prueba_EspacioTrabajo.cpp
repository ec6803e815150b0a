#include "base/EspacioTrabajo.h"

#include <gtest/gtest.h>
#include <unistd.h>

namespace novex {
namespace {

namespace fs = std::filesystem;

TEST(EspacioTrabajo, LaMarcaDelCodigoPostalEligeElClima) {
  const EspacioTrabajo espacio{"/p"};
  EXPECT_EQ(espacio.Clima("D3", ""), fs::path("/p/databaseCTE/ZonaD3.met"));
  EXPECT_EQ(espacio.Clima("alfa3c", "46001"), fs::path("/p/databaseCTE/Zonaalfa3c.met"));
  EXPECT_EQ(espacio.Clima("D3", "-1992"), fs::path("/p/database1992/ZonaD3.met"));
  EXPECT_EQ(espacio.Clima("D3", "-2002"), fs::path("/p/database2002/ZonaD3.met"));
  EXPECT_EQ(espacio.Clima("D3", "-2012"), fs::path("/p/database2012/ZonaD3.met"));
  EXPECT_EQ(espacio.Clima("D3", "-2022"), fs::path("/p/database2022/ZonaD3.met"));
  // Solo la marca exacta.
  for (const char* otro : {"2022", "-2021", "-20222", "- 2022", "../-2022"})
    EXPECT_EQ(CarpetaClima(otro), "databaseCTE") << otro;
}

TEST(EspacioTrabajo, BuscaLaCarpetaDeProgramaPorOrden) {
  const fs::path raiz =
      fs::temp_directory_path() / ("novex_espacio_trabajo_" + std::to_string(::getpid()));
  const fs::path ejecutable = raiz / "bin" / "novex-cli";
  fs::remove_all(raiz);
  fs::create_directories(raiz / "bin" / "programa");  // sin `database`: no vale
  EXPECT_EQ(BuscarCarpetaPrograma(ejecutable), fs::path());
  fs::create_directories(raiz / "share" / "novex" / "database");
  EXPECT_EQ(BuscarCarpetaPrograma(ejecutable), raiz / "share" / "novex");
  fs::create_directories(raiz / "bin" / "database");
  EXPECT_EQ(BuscarCarpetaPrograma(ejecutable), raiz / "bin");
  fs::create_directories(raiz / "bin" / "programa" / "database");
  EXPECT_EQ(BuscarCarpetaPrograma(ejecutable), raiz / "bin" / "programa");
  fs::remove_all(raiz);
}

}  // namespace
}  // namespace novex
