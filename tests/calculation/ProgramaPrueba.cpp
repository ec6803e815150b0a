#include "calculation/ProgramaPrueba.h"

#include "base/FicheroSeguro.h"
#include "base/NumeroTexto.h"

namespace novex::pruebas {
namespace {

std::string TextoMet(const ClimaConstante& clima) {
  const std::string T = Fijo(static_cast<double>(clima.temperatura), 1);
  const std::string linea = "1\t1\t1\t" + T + "\t" + T + "\t0\t0\t0.002\t" +
                            Fijo(static_cast<double>(clima.humedadRelativa), 0) +
                            "\t2\t180\t0\t90\r\n";
  std::string texto = "Clima constante\r\n40.5\t-4\t0\t15\r\n";
  for (int h = 1; h <= kHorasAno; ++h) texto += linea;
  return texto;
}

}  // namespace

ProgramaPrueba::ProgramaPrueba(const ClimaConstante& clima) {
  std::filesystem::create_directories(Datos());
  std::filesystem::create_directories(carpeta_ / "databaseCTE");
  for (const char* nombre : {"CoefTransf.xml", "Capitales.xml", "FactoresConversion.xml",
                             "Defecto.xml", "Localidades.xml"})
    std::filesystem::copy(std::filesystem::path(NOVEX_RAIZ_DATOS) / "database" / nombre,
                          Datos() / nombre);
  EscribirFichero(carpeta_ / "databaseCTE/ZonaD3.met", TextoMet(clima));
}

bool ProgramaPrueba::Calcular(Edificio& edificio, std::string_view nombre, std::string_view modo,
                              bool ficherosDeCaso) {
  FicherosPrograma ficheros{EspacioTrabajo{carpeta_ / ""}};
  Progreso progreso;
  Entorno entorno{ficheros, mensajes, progreso, ficherosDeCaso};
  return EjecutarCalculo(edificio, nombre, modo, entorno);
}

std::unique_ptr<Edificio> CajaCaliente() {
  auto edificio = std::make_unique<Edificio>();
  Recinto& r = edificio->GetRecinto(0);
  r.Suelo_habitable_m2 = 100;
  r.Volumen_total_m3 = 300;
  for (const Sector s : {norte, oeste, sur, este}) r.Muro_ext_m2[0][s] = 30;
  r.Cubierta_horiz_sol_m2[0] = 100;
  edificio->GetComposicion(ranura::MuroExt1).U = 0.5F;
  edificio->GetComposicion(ranura::TechoExt1).U = 0.4F;

  Huecos& g = edificio->GetHuecos(0);
  g.Ancho_m = 2;
  g.Alto_m = 1;
  g.Fraccion_marco_tanto_por_cien = 0;
  g.U_cristal_W_m2K = 3;
  g.columnas[sur].Anadir(10);

  CambiarConstruccion(*edificio, [](Construccion& c) {
    c.Espesor_forjado = 0;
    c.Longitud_puentes_termicos_modo = "Facilitados";
    c.Perimetro_forjados = 40;
    c.U_L_Puentes = {};
    c.U_L_Puentes[puente_forjados] = 0.5F;
  });
  CambiarGenerales(*edificio, [](DatosGenerales& d) {
    d.PerfilUso = 0;
    d.Equipos_Defecto = "SI";
    d.Tiposimulacion = "Certificacion";
    d.Tipon50 = "Medido";
    d.Valorn50 = 0;
    d.ManejoVentanas2 = "Cerradas";
    d.TipoVentilacion2 = "Hibrida";
    d.perfiles = {};
    d.perfiles.calendario.fill(1);
    d.perfiles.AccionMes.fill("Cale+Refri");
    for (std::size_t h = 1; h <= 24; ++h) {
      d.perfiles.tabla[CTCh][0][h] = 21;
      d.perfiles.tabla[CTRh][0][h] = 26;
    }
  });
  Ventilacion v = edificio->GetVentilacion();
  v.nrenovventilacion = 0.6F;
  edificio->SetVentilacion(v);
  Localizacion lugar;
  lugar.ZonaClimatica = "D3";
  lugar.Provincia = "Madrid";
  lugar.mesmin = 6;
  lugar.mesmax = 9;
  edificio->SetLocalizacion(lugar);
  return edificio;
}

}  // namespace novex::pruebas
