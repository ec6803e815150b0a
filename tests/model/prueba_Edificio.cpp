#include "model/Edificio.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <regex>
#include <stdexcept>
#include <vector>

#include "model/Cambios.h"

namespace novex {
namespace {

using namespace ranura;
using pruebas::Capa;

std::vector<std::string> NombresCapas(const Edificio& e, std::size_t i) {
  std::vector<std::string> nombres;
  for (const material* m : e.GetComposicion(i).capas) nombres.push_back(m->Material);
  return nombres;
}

std::vector<std::string> NombresAlmacen(const Edificio& e) {
  std::vector<std::string> nombres;
  for (std::size_t i = 0; i < e.NumeroMateriales(); ++i)
    nombres.push_back(e.GetMaterial(i).Material);
  return nombres;
}

using Nombres = std::vector<std::string>;

SistemaResidencial Sistema(const std::string& nombre) {
  SistemaResidencial s;
  s.Nombre_sistema = nombre;
  s.Sup_ACS = 80;
  return s;
}

TEST(Edificio, EnBlancoTieneUnRecintoUnGrupoYTodoSinDefinir) {
  const Edificio e;
  EXPECT_EQ(e.NumeroRecintos(), 1U);
  EXPECT_EQ(e.NumeroHuecos(), 1U);
  EXPECT_EQ(e.NumeroMateriales(), 0U);
  EXPECT_EQ(e.NumeroSistemas(), 0U);
  EXPECT_EQ(e.GetCalculo(), nullptr);
  for (std::size_t i = 0; i < 52; ++i) {
    EXPECT_EQ(e.GetComposicion(i).nombre, "No definido");
    EXPECT_EQ(e.GetComposicion(i).U, 0);
    EXPECT_TRUE(e.GetComposicion(i).capas.empty());
  }
  EXPECT_THROW(e.GetComposicion(52), std::out_of_range);
  EXPECT_TRUE(std::regex_match(e.GetDatosGenerales().Fecha, std::regex(R"(\d\d/\d\d/20\d\d)")))
      << e.GetDatosGenerales().Fecha;
}

TEST(Edificio, BorrarDeUnaListaQuitaEseElementoYNadaFueraDeElla) {
  Edificio e;
  for (const char* nombre : {"Grupo_2", "Grupo_3"}) {
    Huecos h;
    h.Nombre_hueco = nombre;
    e.AnadirHuecos(h);
  }
  e.BorrarHuecos(1);
  ASSERT_EQ(e.NumeroHuecos(), 2U);
  EXPECT_EQ(e.GetHuecos(0).Nombre_hueco, "Grupo_1");
  EXPECT_EQ(e.GetHuecos(1).Nombre_hueco, "Grupo_3");
  const std::function<void()> fuera[] = {[&] { e.BorrarHuecos(2); },  [&] { e.GetHuecos(2); },
                                         [&] { e.BorrarSistema(0); }, [&] { e.GetSistema(0); },
                                         [&] { e.BorrarRecinto(1); }, [&] { e.GetRecinto(1); },
                                         [&] { e.GetMaterial(0); }};
  for (const auto& hacer : fuera) EXPECT_THROW(hacer(), std::out_of_range);
  EXPECT_EQ(e.NumeroHuecos(), 2U);

  e.AnadirSistema(Sistema("S1"));
  e.AnadirSistema(Sistema("S2"));
  e.BorrarSistema(0);
  ASSERT_EQ(e.NumeroSistemas(), 1U);
  EXPECT_EQ(e.GetSistema(0).Nombre_sistema, "S2");
}

TEST(Almacen, SeComparteElMaterialIgualYSeCuentanSusUsos) {
  Edificio e;
  EXPECT_EQ(e.AnadirMaterial(Capa("Ladrillo", 0.115F, 0.7F), MuroExt1), 0U);
  EXPECT_EQ(e.AnadirMaterial(Capa("Lana", 0.05F, 0.04F), MuroExt1), 1U);
  // El mismo en otra composición y repetido en la suya; los demás campos no distinguen.
  material repetido = Capa("Ladrillo", 0.115F, 0.7F);
  repetido.Densidad = 1200;
  repetido.Grupo = "otro";
  EXPECT_EQ(e.AnadirMaterial(repetido, MuroExt1), 0U);
  EXPECT_EQ(e.AnadirMaterial(repetido, SueloTerr3), 0U);
  EXPECT_EQ(e.NumeroMateriales(), 2U);
  EXPECT_EQ(e.GetMaterial(0).usos, 3);
  EXPECT_EQ(e.GetMaterial(0).Densidad, 0);
  EXPECT_EQ(NombresCapas(e, MuroExt1), (Nombres{"Ladrillo", "Lana", "Ladrillo"}));

  // Otro espesor, otra conductividad u otro nombre son otra entrada.
  EXPECT_EQ(e.AnadirMaterial(Capa("Ladrillo", 0.12F, 0.7F), MuroExt2), 2U);
  EXPECT_EQ(e.AnadirMaterial(Capa("Ladrillo", 0.115F, 0.71F), MuroExt2), 3U);
  EXPECT_EQ(e.AnadirMaterial(Capa("ladrillo", 0.115F, 0.7F), MuroExt2), 4U);

  EXPECT_EQ(e.IndiceMaterial(&e.GetMaterial(3)), 3U);
  const material ajeno = e.GetMaterial(3);
  EXPECT_EQ(e.IndiceMaterial(&ajeno), e.NumeroMateriales());
  // Sin destino no cuenta como uso.
  Edificio otro;
  material traeUsos = Capa("Yeso", 0.015F, 0.4F);
  traeUsos.usos = 7;
  EXPECT_EQ(otro.AnadirMaterial(traeUsos), 0U);
  EXPECT_EQ(otro.GetMaterial(0).usos, 0);
  otro.AnadirCapa(TechoExt1, 0);
  EXPECT_EQ(otro.GetMaterial(0).usos, 1);
  EXPECT_EQ(otro.GetComposicion(TechoExt1).capas.front(), &otro.GetMaterial(0));
  EXPECT_THROW(otro.AnadirCapa(TechoExt1, 1), std::out_of_range);
  EXPECT_THROW(otro.AnadirCapa(52, 0), std::out_of_range);
  EXPECT_EQ(otro.GetMaterial(0).usos, 1);
}

TEST(Almacen, LimpiarQuitaSoloLoQueNadieUsa) {
  Edificio e;
  e.AnadirMaterial(Capa("Solo1", 0.1F, 1), MuroExt1);
  e.AnadirMaterial(Capa("Comun", 0.1F, 1), MuroExt1);
  e.AnadirMaterial(Capa("Solo1", 0.1F, 1), MuroExt1);
  e.AnadirMaterial(Capa("Comun", 0.1F, 1), MuroExt2);
  e.AnadirMaterial(Capa("Solo2", 0.1F, 1), MuroExt2);
  e.AnadirMaterial(Capa("Suelto", 0.1F, 1));
  e.GetComposicion(MuroExt1).nombre = "Fachada";
  e.GetComposicion(MuroExt1).U = 0.5F;

  e.LimpiarComposicion(MuroExt1);
  EXPECT_EQ(e.GetComposicion(MuroExt1).nombre, "No definido");
  EXPECT_EQ(e.GetComposicion(MuroExt1).U, 0);
  EXPECT_TRUE(e.GetComposicion(MuroExt1).capas.empty());
  EXPECT_EQ(NombresAlmacen(e), (Nombres{"Comun", "Solo2"}));
  // Las capas de la otra siguen apuntando a sus materiales.
  EXPECT_EQ(NombresCapas(e, MuroExt2), (Nombres{"Comun", "Solo2"}));
  EXPECT_EQ(e.GetMaterial(0).usos, 1);

  e.LimpiarComposicion(MuroExt2);
  EXPECT_EQ(e.NumeroMateriales(), 0U);
  EXPECT_THROW(e.LimpiarComposicion(52), std::out_of_range);
}

void Rellenar(Edificio& e) {
  // El almacén empieza por un material suelto y por uno que la primera posición no usa antes.
  e.AnadirMaterial(Capa("Suelto", 1, 1));
  e.AnadirMaterial(Capa("Suelo", 0.2F, 2), SueloInt4);
  e.AnadirMaterial(Capa("Muro", 0.3F, 1), MuroExt1);
  e.AnadirMaterial(Capa("Suelo", 0.2F, 2), MuroExt1);
  e.GetComposicion(MuroExt1).nombre = "Fachada";
  e.GetComposicion(MuroExt1).U = 0.35F;
  e.GetRecinto(0).Muro_ext_m2[4][este] = 12;
  Recinto segundo;
  segundo.nombre = "Otro";
  e.AnadirRecinto(segundo);
  e.GetHuecos(0).columnas[sur].Anadir(3);
  e.GetHuecos(0).columnas[sur].recintos.push_back(1);
  e.AnadirSistema(Sistema("Caldera"));
  ObstaculosRemotos obstaculos;
  obstaculos.Este_Distancia = 4;
  e.SetObstaculosRemotos(obstaculos);
  DatosClimaticosSitio clima;
  clima.Tproyecto = 31;
  e.SetDatosClimaticosSitio(clima);
  Ventilacion v;
  v.tipologias[5].N_viviendas = 6;
  e.SetVentilacion(v);
  EstudioModificaciones estudio;
  estudio.medidas.push_back({3, true, "1200", "", {"a"}});
  e.SetEstudioModificaciones(estudio);
  Instalaciones propia;
  propia.Seleccion = "1 Caldera";
  e.SetInstalaciones(propia);
}

TEST(Clonar, CopiaTodoYRehaceElAlmacenPorPrimerUso) {
  Edificio e;
  Rellenar(e);
  const auto clon = e.Clonar();
  EXPECT_TRUE(MismosRegistros(e, *clon));
  EXPECT_EQ(clon->GetDatosClimaticosSitio(), e.GetDatosClimaticosSitio());
  EXPECT_EQ(NombresAlmacen(e), (Nombres{"Suelto", "Suelo", "Muro"}));
  EXPECT_EQ(NombresAlmacen(*clon), (Nombres{"Muro", "Suelo"}));
  EXPECT_EQ(clon->GetMaterial(1).usos, 2);
  EXPECT_EQ(NombresCapas(*clon, MuroExt1), (Nombres{"Muro", "Suelo"}));
  EXPECT_EQ(clon->GetHuecos(0).columnas[sur].recintos, (std::vector<std::size_t>{0, 0, 0, 1}));
}

TEST(Clonar, ElClonDeUnClonVivePorSuCuenta) {
  auto e = std::make_unique<Edificio>();
  Rellenar(*e);
  const auto segundo = e->Clonar()->Clonar();
  ASSERT_TRUE(MismosRegistros(*e, *segundo));
  for (const material* capa : segundo->GetComposicion(MuroExt1).capas)
    EXPECT_LT(segundo->IndiceMaterial(capa), segundo->NumeroMateriales());
  segundo->GetHuecos(0).columnas[sur].Quitar(4);
  segundo->LimpiarComposicion(MuroExt1);
  EXPECT_EQ(e->GetHuecos(0).NumeroTotal(), 4U);
  EXPECT_EQ(NombresCapas(*e, MuroExt1), (Nombres{"Muro", "Suelo"}));
  // Borrado el original, las capas del clon siguen en pie.
  e.reset();
  EXPECT_EQ(NombresCapas(*segundo, SueloInt4), (Nombres{"Suelo"}));
}

TEST(MismosRegistros, CualquierCambioGuardadoLosHaceDistintos) {
  Edificio e;
  Rellenar(e);
  const std::vector<std::function<void(Edificio&)>> cambios = {
      [](Edificio& x) { x.GetComposicion(TechoInt4).U = 1; },
      [](Edificio& x) { x.GetComposicion(MuroExt1).nombre = "Otra"; },
      [](Edificio& x) { x.AnadirCapa(MuroExt1, 0); },
      [](Edificio& x) { x.GetRecinto(0).Muro_ext_m2[4][este] = 13; },
      [](Edificio& x) { x.BorrarRecinto(1); },
      [](Edificio& x) { x.GetHuecos(0).columnas[kColumnaHorizontal].Anadir(1); },
      [](Edificio& x) { x.AnadirHuecos({}); },
      [](Edificio& x) { x.GetSistema(0).Sup_ACS = 81; },
      [](Edificio& x) { x.SetInstalaciones({}); },
      [](Edificio& x) { x.SetEstudioModificaciones({}); },
      [](Edificio& x) { x.SetVentilacion({}); },
      [](Edificio& x) { x.SetObstaculosRemotos({}); },
      [](Edificio& x) { pruebas::CambiarLugar(x, [](auto& l) { l.latitud = 41; }); },
      [](Edificio& x) {
        pruebas::CambiarGenerales(x, [](DatosGenerales& g) { g.perfiles.tabla[CCAC][8][24] = 1; });
      },
      [](Edificio& x) { pruebas::CambiarConstruccion(x, [](auto& c) { c.fi_Puentes[6] = 0.5F; }); },
      [](Edificio& x) {
        DatosPantalla p;
        p.Plano = std::make_shared<const std::string>("");
        x.SetDatosPantalla(p);
      }};
  for (std::size_t i = 0; i < cambios.size(); ++i) {
    const auto otro = e.Clonar();
    cambios[i](*otro);
    EXPECT_FALSE(MismosRegistros(e, *otro)) << "cambio " << i;
    EXPECT_FALSE(MismosRegistros(*otro, e)) << "cambio " << i;
  }
  // El clima del sitio se deduce en el cálculo y no cuenta.
  const auto otro = e.Clonar();
  otro->SetDatosClimaticosSitio({});
  EXPECT_TRUE(MismosRegistros(e, *otro));
}

TEST(DatosPantalla, LasImagenesSeComparanPorSuTexto) {
  DatosPantalla a, b;
  a.Imagen = std::make_shared<const std::string>("iVBOR");
  b.Imagen = std::make_shared<const std::string>("iVBOR");
  EXPECT_EQ(a, b);
  b.Imagen = std::make_shared<const std::string>("iVBOS");
  EXPECT_FALSE(a == b);
  b.Imagen.reset();
  EXPECT_FALSE(a == b);
}

}  // namespace
}  // namespace novex
