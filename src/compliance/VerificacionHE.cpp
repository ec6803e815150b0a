#include "compliance/VerificacionHE.h"

#include "compliance/DocumentosCondensacion.h"
#include "compliance/Requisitos.h"

namespace novex {
namespace {

int EscribirValorMaximo(const std::filesystem::path& datos, const TransmitanciasMaximas& maximas) {
  XMLNode documento = XMLNode::createTop("xml version=\"1.0\" encoding=\"UTF-8\"");
  XMLNode raiz = documento.appendChild("VALORMAXIMO");
  const auto fila = [&](const std::vector<Celda>& celdas) {
    XMLNode nodo = raiz.appendChild("L");
    for (std::size_t i = 0; i < celdas.size(); ++i)
      nodo.setAttribute(maximas.SGValorMaximo.cabeceras[i], celdas[i].texto);
  };
  const auto& cabeceras = maximas.SGValorMaximo.cabeceras;
  fila({cabeceras.begin(), cabeceras.end()});
  for (const auto& celdas : maximas.SGValorMaximo.filas) fila(celdas);
  return documento.saveToFile(datos / "ValorMaximo.xml");
}

void Anadir(std::vector<Veredicto>& destino, const std::vector<Veredicto>& otros) {
  destino.insert(destino.end(), otros.begin(), otros.end());
}

}  // namespace

VerificacionHE VerificarHE(const Edificio& edificio, const calculo& caso,
                           const DocumentosHE& documentos) {
  const DatosGenerales& d = edificio.GetDatosGenerales();
  const ResultadosCaso& resultados = caso.resultados;
  VerificacionHE v;
  v.he0 = ComprobarHE0(edificio, resultados);
  v.K = ComprobarK(edificio, resultados, documentos);
  v.n50 = ComprobarN50(edificio, resultados, documentos);
  v.q = ComprobarControlSolar(edificio, documentos);
  v.maximas = ComprobarTransmitancias(edificio, resultados, documentos);
  v.condensacion = VerificarCondensaciones(edificio);
  v.he3 = ComprobarHE3(d);
  v.he4 = ComprobarHE4(edificio, caso, AplicaRequisito(d, Requisito::HE4) == Aplicacion::No);
  v.he5 = ComprobarHE5(d);
  Anadir(v.veredictos, v.he0.veredictos);
  Anadir(v.veredictos, {v.K.registro, v.q.registro, v.n50.registro});
  Anadir(v.veredictos, v.maximas.veredictos);
  Anadir(v.veredictos, v.condensacion.veredictos);
  Anadir(v.veredictos, v.he3.veredictos);
  Anadir(v.veredictos, {v.he4.veredicto, v.he5.veredicto});
  return v;
}

int EscribirDocumentosHE(const std::filesystem::path& datos, const VerificacionHE& verificacion) {
  const int maximo = EscribirValorMaximo(datos, verificacion.maximas);
  const int condensacion = EscribirDocumentosCondensacion(datos, verificacion.condensacion);
  return maximo != 0 ? maximo : condensacion;
}

}  // namespace novex
