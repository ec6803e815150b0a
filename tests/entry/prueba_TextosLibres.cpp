#include "entry/TextosLibres.h"

#include <gtest/gtest.h>

namespace novex {
namespace {

TEST(TextosLibres, SeCortanAlLimiteConSuAviso) {
  RegistroMensajes m;
  EXPECT_EQ(LineasDeTexto("uno\r\n\r\ntres", 3, m), (std::vector<std::string>{"uno", "", "tres"}));
  EXPECT_TRUE(LineasDeTexto("", 3, m).empty());
  EXPECT_EQ(LineasDeTexto("uno\n", 1, m), std::vector<std::string>{"uno"});
  EXPECT_TRUE(m.recibidos.empty());
  EXPECT_EQ(LineasDeTexto(std::string(41, '\n'), kLineasMemo, m).size(), 40U);
  ASSERT_EQ(m.recibidos.size(), 1U);
  EXPECT_EQ(m.recibidos[0].titulo, "ATENCION");
  EXPECT_EQ(m.recibidos[0].texto,
            "Se han definido mas de 40 líneas, se recorta el texto a las 40 primeras líneas");
}

TEST(TextosLibres, LaNotaEsDeUnaMedidaMarcada) {
  RegistroMensajes m;
  EstudioModificaciones estudio;
  estudio.medidas = {{9, true, "", "", {"vieja"}}, {12, false, "", "", {}}};
  EXPECT_FALSE(GuardarNotaMedida(estudio, 12, "a", m));
  EXPECT_FALSE(GuardarNotaMedida(estudio, 3, "a", m));
  EXPECT_TRUE(GuardarNotaMedida(estudio, 9, "1\n2\n3\n4\n5\n6\n7\n8\n9\n10\n11", m));
  EXPECT_EQ(estudio.medidas[0].notas.size(), 10U);
  EXPECT_EQ(m.recibidos.size(), 1U);
  EXPECT_TRUE(GuardarNotaMedida(estudio, 9, "", m));
  EXPECT_TRUE(estudio.medidas[0].notas.empty());
}

}  // namespace
}  // namespace novex
