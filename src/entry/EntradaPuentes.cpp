#include "entry/EntradaPuentes.h"

#include <utility>

#include "base/NumeroTexto.h"
#include "model/CatalogoCampos.h"
#include "reference/LongitudesPuentes.h"
#include "reference/ValoresPuentes.h"

namespace novex {
namespace {

constexpr int kModoContinuo = 2;
constexpr int kModoDados = 4;
constexpr int kModoLider = 5;
constexpr int kPilaresExterior = 1;  // con aislamiento continuo
constexpr int kVentanasEnContacto = 1;
constexpr int kSinPilares = 3;
constexpr std::string_view kEstimados = "Estimados";

void PonerSolucion(Construccion& c, const PaginaPuentes& pagina) {
  if (pagina.forjados < 0 || pagina.forjados > kModoContinuo) return;
  c.Def_Puentes_termicos = pagina.forjados;
  if (pagina.forjados == kModoContinuo) {
    c.Def_Puentes_termicos_pilares = kPilaresExterior;
    c.Def_Puentes_termicos_ventanas = kVentanasEnContacto;
  } else {
    if (pagina.pilares >= 0 && pagina.pilares <= kSinPilares)
      c.Def_Puentes_termicos_pilares = pagina.pilares;
    if (pagina.ventanas >= 0 && pagina.ventanas <= 2)
      c.Def_Puentes_termicos_ventanas = pagina.ventanas;
  }
  c.Existencia_pilares = c.Def_Puentes_termicos_pilares == kSinPilares ? 1 : 0;
}

void PonerDados(Construccion& c, const PaginaPuentes& pagina, Mensajes& mensajes) {
  c.Def_Puentes_termicos = kModoDados;
  for (std::size_t i = 0; i < kPuentes; ++i) {
    c.U_L_Puentes[i] = ComprobarValor(pagina.valores[i].U, "Puente", mensajes);
    c.fi_Puentes[i] = ComprobarValor(pagina.valores[i].fi, "Cualquiera", mensajes);
  }
}

}  // namespace

void AceptarPaginaPuentes(Edificio& edificio, const PaginaPuentes& pagina, Mensajes& mensajes) {
  Construccion c = edificio.GetConstruccion();
  if (pagina.origen == OrigenPuentes::Tipicos) {
    PonerSolucion(c, pagina);
  } else {
    if (pagina.existenciaPilares == 0 || pagina.existenciaPilares == 1)
      c.Existencia_pilares = pagina.existenciaPilares;
    if (pagina.origen == OrigenPuentes::Especiales)
      PonerDados(c, pagina, mensajes);
    else
      c.Def_Puentes_termicos = kModoLider;
  }
  edificio.SetConstruccion(PuentesPorTabla(c, edificio.GetLocalizacion().ZonaClimatica));
  edificio.SetConstruccion(LongitudesEstimadas(edificio));
}

PaginaPuentes PaginaDePuentes(const Construccion& c) {
  PaginaPuentes p;
  if (c.Def_Puentes_termicos == kModoDados)
    p.origen = OrigenPuentes::Especiales;
  else if (c.Def_Puentes_termicos >= 0 && c.Def_Puentes_termicos <= kModoContinuo)
    p.origen = OrigenPuentes::Tipicos;
  if (p.origen == OrigenPuentes::Tipicos) p.forjados = c.Def_Puentes_termicos;
  p.pilares = c.Def_Puentes_termicos_pilares;
  p.ventanas = c.Def_Puentes_termicos_ventanas;
  p.existenciaPilares = c.Existencia_pilares;
  for (std::size_t i = 0; i < kPuentes; ++i)
    p.valores[i] = {General(c.U_L_Puentes[i]), General(c.fi_Puentes[i])};
  return p;
}

void AceptarLongitudes(Edificio& edificio, std::span<const std::string, 12> textos,
                       Mensajes& mensajes) {
  Construccion c = edificio.GetConstruccion();
  if (c.Longitud_puentes_termicos_modo == kEstimados) {
    edificio.SetConstruccion(LongitudesEstimadas(edificio));
    return;
  }
  std::size_t i = 0;
  for (float& longitud : c.Long_pilares) longitud = ComprobarValor(textos[i++], "Long", mensajes);
  for (float* longitud :
       {&c.Perimetro_forjados, &c.Perimetro_cubiertas, &c.Longitud_esquinas_sal_menos_ent,
        &c.Perimetro_suelo_ext, &c.Perimetro_huecos, &c.Perimetro_suelo_terreno})
    *longitud = ComprobarValor(textos[i++], "Long", mensajes);
  edificio.SetConstruccion(std::move(c));
}

}  // namespace novex
