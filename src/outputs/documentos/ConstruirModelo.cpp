#include "outputs/documentos/ConstruirModelo.h"

#include "outputs/documentos/ConsumosServicio.h"
#include "outputs/documentos/FilasEnvolvente.h"
#include "outputs/documentos/VariablesCalificacion.h"
#include "outputs/documentos/VariablesEnvolventeHE.h"
#include "outputs/documentos/VariablesEquipos.h"
#include "outputs/documentos/VariablesEspacio.h"
#include "outputs/documentos/VariablesIdentidad.h"
#include "outputs/documentos/VariablesRenovables.h"
#include "outputs/documentos/VariablesVeredictos.h"

namespace novex {

NOVEX_TO_MODELOCERTIFICADO ConstruirModelo(const CasoCalculado& caso,
                                           const VerificacionHE& verificacion,
                                           const MejorasMedidas& mejoras,
                                           const DatosDocumento& datos) {
  NOVEX_TO_MODELOCERTIFICADO modelo;
  std::vector<VBLE>& variables = modelo.variables;
  variables.push_back({"HOJAESTILO", datos.hojaEstilo});
  VariablesIdentidad(*caso.edificio, datos.clase, variables);
  VariablesUso(caso, verificacion.K.envolvente.Compacidad(), variables);
  VariablesVeredictos(caso, verificacion, variables);
  VariablesFotovoltaica(caso, modelo);
  VariablesIndicadores(caso, variables);
  VariablesEscalas(caso, variables);
  VariablesVisitas(caso.edificio->GetDatosGenerales(), variables);
  VariablesImagenes(caso, datos.imagenes, variables);
  VariablesRenovables(caso, variables);
  VariablesEnvolventeHE(verificacion, modelo);
  FilasMejoras(caso, mejoras, datos.imagenes.carpeta, modelo);

  FilasCerramientos(caso, modelo);
  FilasHuecos(*caso.edificio, modelo);
  const bool verifica = datos.tipo == TipoDocumento::HE;
  if (verifica) FilasPuentes(caso.edificio->GetConstruccion(), modelo);
  VariablesEspacio(caso, variables);
  VariablesAuxiliares(caso, variables);
  VariablesEquipos(caso, verifica ? FormaRendimiento::Razon : FormaRendimiento::TantoPorCiento,
                   modelo);
  if (verifica) ListaConsumos(caso, modelo);
  return modelo;
}

std::string ClaseDocumento(const DatosGenerales& generales, TipoDocumento tipo) {
  if (tipo == TipoDocumento::HE) return generales.Modo_trabajo == "Nuevo" ? "NUEVO" : "EXISTENTE";
  if (generales.TipoCertificado == "ProyectoNuevaConstruccion") return "NUEVOS. PROYECTO";
  if (generales.TipoCertificado == "ObraNuevaConstruccion") return "NUEVOS. TERMINADO";
  return "EXISTENTES";
}

}  // namespace novex
