#include "shell/gui/PaginaUso.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/NumeroTexto.h"
#include "demand/CargaInternaMedia.h"
#include "entry/CambiarGenerales.h"
#include "entry/CambioUso.h"
#include "entry/ReglasIluminacion.h"
#include "entry/ReglasVentilacion.h"
#include "model/ClavesCampos.h"
#include "shell/gui/Filas.h"
#include "shell/gui/TextoQt.h"
#include "systems/DemandaACS.h"

namespace novex::gui {
namespace {

constexpr int kViviendaEnBloque = 2;

bool Residencial(const AjustesUso& a) {
  return a.residencial;
}
bool Terciario(const AjustesUso& a) {
  return !a.residencial;
}

QString Cifra(float valor, int decimales) {
  return Q(Fijo(static_cast<double>(valor), decimales));
}

// Pone el campo y, si las renovaciones salen de DB-HS3, las vuelve a sacar.
OpcionesCampo ConHS3(OpcionesCampo opciones, const std::string& direccion) {
  opciones.poner = [direccion](Edificio& e, std::string_view texto, Mensajes& mensajes) {
    PonerCampo(e, direccion, texto, mensajes);
    ActualizarRenovacionesHS3(e, mensajes);
  };
  return opciones;
}

}  // namespace

PaginaUso::PaginaUso(ContextoGui& contexto, QWidget* padre) : Pagina(contexto, padre) {
  auto* columna = new QVBoxLayout(this);
  columna->setContentsMargins(20, 8, 20, 16);
  auto* cajas = new DosColumnas(this);
  cajas->AnadirIzquierda(CajaUso());
  cajas->AnadirIzquierda(CajaViviendas());
  cajas->AnadirIzquierda(CajaIluminacion());
  cajas->AnadirIzquierda(CajaCarga());
  cajas->AnadirIzquierda(CajaAgua());
  cajas->AnadirDerecha(CajaVentilacion());
  cajas->AnadirDerecha(CajaAire());
  cajas->AnadirDerecha(CajaEstanqueidad());
  columna->addWidget(cajas);
  columna->addStretch(1);
}

void PaginaUso::Solo(QFormLayout* filas, QWidget* editor, Cuando cuando) {
  condiciones_.push_back({filas, editor, cuando});
}

QWidget* PaginaUso::CajaUso() {
  const auto [caja, filas] = NuevaCaja(tr("Uso y medidas"), this);
  std::vector<std::string> posiciones;
  for (std::size_t i = 0; i < kNombrePerfilUso.size(); ++i) posiciones.push_back(std::to_string(i));
  QComboBox* perfil = enlaces_.Lista(
      filas, "PerfilUso", posiciones,
      Opciones(tr("Perfil de uso"),
               tr("Da los horarios, las consignas y las cargas (CTE DB-HE, anejo "
                  "D). Pasar de vivienda a terciario o al revés borra los sistemas")),
      Textos(kNombrePerfilUso));
  // El cambio se pregunta antes, porque puede borrar sistemas.
  perfil->disconnect(&enlaces_);
  connect(perfil, &QComboBox::activated, this, &PaginaUso::CambiarPerfil);
  std::vector<std::string> usos = Textos(TextosDeCampo("Uso"));
  std::erase(usos, "ResidencialPrivado");
  Solo(filas,
       enlaces_.Lista(filas, "Uso", usos,
                      Opciones(tr("Uso del edificio"), tr("El que se escribe en el certificado"))),
       Terciario);
  enlaces_.Lista(filas, "Alcance", {"Completo", "Parte"}, Opciones(tr("Alcance")),
                 {"Edificio completo", "Parte del edificio"});
  enlaces_.Linea(filas, "Suelo_habitable_m2",
                 Opciones(tr("Suelo habitable"), tr("Superficie útil de los espacios habitables")));
  enlaces_.Linea(filas, "Volumen_total_m3",
                 ConHS3(Opciones(tr("Volumen total"), tr("Aire de los espacios habitables")),
                        "Volumen_total_m3"));
  notaAltura_ = NotaCorta(caja);
  filas->addRow(QString(), notaAltura_);
  Solo(filas,
       enlaces_.Linea(
           filas, "Nm2_p",
           Opciones(tr("Superficie por persona"),
                    tr("Ocupación para el agua caliente y para la clase de aire"), "m²/persona")),
       Terciario);
  enlaces_.Linea(filas, "NPlantasSobreRasante", Opciones(tr("Plantas sobre rasante")));
  enlaces_.Linea(filas, "NPlantasBajoRasante", Opciones(tr("Plantas bajo rasante")));
  Solo(filas,
       enlaces_.Linea(filas, "NVBloqueF",
                      Opciones(tr("Viviendas del bloque"),
                               tr("Las que comparten las instalaciones centralizadas"))),
       [](const AjustesUso& a) { return a.perfil == kViviendaEnBloque; });
  return caja;
}

QWidget* PaginaUso::CajaViviendas() {
  auto* caja = new QGroupBox(tr("Tipos de vivienda"), this);
  auto* columna = new QVBoxLayout(caja);
  PonerMargenes(caja);
  auto* rejilla = new QGridLayout;
  rejilla->setHorizontalSpacing(8);
  rejilla->setVerticalSpacing(3);
  const QStringList titulos = {"",          tr("Viviendas"), tr("Dormitorios"), tr("Salas"),
                               tr("Baños"), tr("Personas"),  tr("HS3 l/s")};
  for (int c = 0; c < titulos.size(); ++c)
    rejilla->addWidget(new QLabel(titulos[c], caja), 0, c, Qt::AlignRight);
  auto* aviso = NuevaNota(caja, "aviso");
  aviso->hide();
  constexpr std::array<const char*, 4> kCampos = {"N_viviendas", "N_dormitorios_dobles",
                                                  "N_salas_estar_comedor", "N_cuartos_de_banyo"};
  const QStringList ayudas = {
      tr("Viviendas iguales de este tipo"), tr("Dormitorios de cada vivienda"),
      tr("Salas de estar y comedores de cada vivienda"), tr("Cuartos de baño de cada vivienda")};
  for (std::size_t t = 0; t < kTipologias; ++t) {
    const int fila = static_cast<int>(t) + 1;
    const QString tipo = QString(QChar(u'A' + static_cast<int>(t)));
    auto* rotulo = new QLabel(tr("Tipo %1").arg(tipo), caja);
    rejilla->addWidget(rotulo, fila, 0);
    filasViviendas_.push_back({rotulo});
    for (std::size_t c = 0; c < kCampos.size(); ++c) {
      const std::string direccion = "Tipologia[" + std::to_string(t + 1) + "]/" + kCampos[c];
      const int posicion = static_cast<int>(c);
      QLineEdit* celda = enlaces_.Celda(
          direccion,
          ConHS3(Opciones(tr("%1 del tipo %2").arg(titulos[posicion + 1], tipo), ayudas[posicion]),
                 direccion),
          aviso);
      rejilla->addWidget(celda, fila, posicion + 1);
      filasViviendas_.back().push_back(celda);
    }
    personas_.push_back(new QLabel(caja));
    caudales_.push_back(new QLabel(caja));
    rejilla->addWidget(personas_.back(), fila, 5, Qt::AlignRight);
    rejilla->addWidget(caudales_.back(), fila, 6, Qt::AlignRight);
    filasViviendas_.back().insert(filasViviendas_.back().end(),
                                  {personas_.back(), caudales_.back()});
  }
  columna->addLayout(rejilla);
  columna->addWidget(aviso);
  sumaViviendas_ = NuevaNota(caja);
  columna->addWidget(sumaViviendas_);
  Solo(nullptr, caja, Residencial);
  return caja;
}

QWidget* PaginaUso::CajaAgua() {
  const auto [caja, filas] = NuevaCaja(tr("Agua caliente"), this);
  std::vector<std::string> actividades;
  for (const std::string_view a : ActividadesACS()) actividades.emplace_back(a);
  Solo(filas,
       enlaces_.Lista(filas, "Actividad", actividades,
                      Opciones(tr("Actividad"), tr("Da los litros por persona y día a 60 ºC (CTE "
                                                   "DB-HE, anejo F)"))),
       Terciario);
  Solo(filas,
       enlaces_.Linea(filas, "CriterioACS",
                      OpcionesSinCalculo(tr("Criterio de demanda"),
                                         tr("El del proyecto, si no es el de la actividad"))),
       Terciario);
  enlaces_.Linea(filas, "ConsumoAgua_litros_dia",
                 Opciones(tr("Demanda diaria"), tr("Consumo del edificio a 60 ºC"), tr("l/día")));
  auto* fila = new QHBoxLayout;
  notaAgua_ = new QLabel(caja);
  notaAgua_->setProperty("papel", "nota");
  fila->addWidget(notaAgua_);
  fila->addSpacing(8);
  auto* tomar = new QPushButton(tr("Tomarla"), caja);
  tomar->setObjectName("TomarAguaDeReferencia");
  tomar->setToolTip(tr("Pone la demanda de referencia (CTE DB-HE, anejo F)"));
  fila->addWidget(tomar);
  fila->addStretch(1);
  filas->addRow(QString(), fila);
  connect(tomar, &QPushButton::clicked, this, &PaginaUso::TomarAguaDeReferencia);
  return caja;
}

QWidget* PaginaUso::CajaVentilacion() {
  const auto [caja, filas] = NuevaCaja(tr("Ventilación"), this);
  filasVentilacion_ = filas;
  OpcionesCampo renovaciones = Opciones(tr("Renovaciones"), tr("Aire exterior de proyecto"));
  renovaciones.poner = PonerRenovaciones;
  enlaces_.Linea(filas, "nrenovventilacion", renovaciones);
  caudal_ = NotaCorta(caja);
  filas->addRow(QString(), caudal_);
  notaRenovaciones_ = NotaCorta(caja);
  filas->addRow(QString(), notaRenovaciones_);
  OpcionesCampo hs3 = Opciones(tr("Calcular según CTE-HS3"),
                               tr("Toma el caudal mínimo de la tabla 2.1 de DB-HS3, que sigue a "
                                  "las viviendas y al volumen"));
  hs3.poner = [](Edificio& e, std::string_view texto, Mensajes& mensajes) {
    PonerSegunHS3(e, texto == "Si", mensajes);
  };
  Solo(filas, enlaces_.Casilla(filas, "Calcular_Renov_h_segun_HS3", hs3, "Si", "No"), Residencial);
  minimoHS3_ = NotaCorta(caja);
  filas->addRow(QString(), minimoHS3_);
  Solo(filas, minimoHS3_, Residencial);
  QWidget* clases = CajaClaseAire();
  filas->addRow(clases);
  Solo(filas, clases, Terciario);
  return caja;
}

QWidget* PaginaUso::CajaClaseAire() {
  auto* caja = new QWidget(this);
  auto* rejilla = new QGridLayout(caja);
  rejilla->setContentsMargins(0, 4, 0, 0);
  auto* titulo = new QLabel(tr("Calidad del aire interior"), caja);
  titulo->setProperty("papel", "seccion");
  rejilla->addWidget(titulo, 0, 0);
  auto* aclarar = new QPushButton(tr("Aclaración"), caja);
  aclarar->setToolTip(tr("Qué locales son de cada clase (RITE, IT 1.1.4.2.2)"));
  rejilla->addWidget(aclarar, 0, 1);
  connect(aclarar, &QPushButton::clicked, this, [this] {
    contexto_.Sesion().Avisos().Avisar(kAclaracionClasesAire.titulo, kAclaracionClasesAire.texto);
  });
  for (std::size_t clase = 0; clase < kCaudalPersona.size(); ++clase) {
    const int fila = static_cast<int>(clase) + 1;
    clases_.push_back(new QLabel(caja));
    rejilla->addWidget(clases_.back(), fila, 0);
    auto* aceptar = new QPushButton(tr("Aceptar"), caja);
    aceptar->setObjectName(QString("AceptarIDA%1").arg(fila));
    aceptar->setToolTip(tr("Toma las renovaciones de esta clase"));
    rejilla->addWidget(aceptar, fila, 1);
    aceptarClase_.push_back(aceptar);
    connect(aceptar, &QPushButton::clicked, this, [this, clase] { TomarClaseAire(clase); });
  }
  rejilla->setColumnStretch(2, 1);
  faltaClase_ = NotaCorta(caja, "aviso");
  faltaClase_->setText(tr("Defina antes la superficie por persona y el volumen"));
  rejilla->addWidget(faltaClase_, rejilla->rowCount(), 0, 1, 3);
  return caja;
}

QWidget* PaginaUso::CajaEstanqueidad() {
  const auto [caja, filas] = NuevaCaja(tr("Estanqueidad"), this);
  enlaces_.Lista(filas, "Tipon50", {"Teorico", "Medido"},
                 Opciones(tr("n50"), tr("Renovaciones con 50 Pa: por los elementos de la "
                                        "envolvente o por un ensayo (UNE-EN ISO 9972)")),
                 {"Teórico, por los elementos", "Medido en un ensayo"});
  Solo(filas, enlaces_.Linea(filas, "Valorn50", Opciones(tr("Valor medido"), tr("A 50 Pa"), "1/h")),
       [](const AjustesUso& a) { return !a.n50Teorico; });
  return caja;
}

QWidget* PaginaUso::CajaIluminacion() {
  const auto [caja, filas] = NuevaCaja(tr("Iluminación"), this);
  std::vector<std::string> actividades;
  for (const EntradaVEII& entrada : kEntradasVEII) actividades.emplace_back(entrada.texto);
  OpcionesCampo actividad = Opciones(tr("Actividad"), tr("Da el límite del VEEI (CTE DB-HE3)"));
  actividad.poner = [](Edificio& e, std::string_view texto, Mensajes&) { ElegirVEIIMax(e, texto); };
  QComboBox* lista = enlaces_.Lista(filas, "TipoVEIIMax", actividades, actividad);
  lista->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  lista->setMinimumContentsLength(36);
  OpcionesCampo limite =
      Opciones(tr("VEEI límite"), tr("Solo se teclea en «Otros»"), "W/m² 100 lux");
  limite.poner = [](Edificio& e, std::string_view texto, Mensajes& mensajes) {
    DefinirVEIIMax(e, texto, mensajes);
  };
  enlaces_.Linea(filas, "VEIIMax", limite);
  enlaces_.Linea(filas, "VEII", Opciones(tr("VEEI instalado"), {}, "W/m² 100 lux"));
  OpcionesCampo lux = Opciones(tr("Iluminancia media"), tr("De ella sale la potencia máxima"));
  lux.poner = PonerLux;
  enlaces_.Linea(filas, "Lux", lux);
  OpcionesCampo potencia = Opciones(tr("Potencia instalada"), tr("De toda la iluminación"));
  potencia.poner = PonerIluminacion;
  enlaces_.Linea(filas, "Iluminacion", potencia);
  potenciaMaxima_ = NotaCorta(caja);
  filas->addRow(QString(), potenciaMaxima_);
  enlaces_.Linea(filas, "Qescaparates",
                 Opciones(tr("Escaparates"), tr("Carga de la iluminación de escaparates")));
  Solo(nullptr, caja, Terciario);
  return caja;
}

QWidget* PaginaUso::CajaCarga() {
  const auto [caja, filas] = NuevaCaja(tr("Carga interna"), this);
  const QString ayuda = tr("Valor máximo del uso: sus horarios van en % de él");
  OpcionesCampo sensible = Opciones(tr("Ocupantes, sensible"), ayuda);
  sensible.poner = [](Edificio& e, std::string_view texto, Mensajes& mensajes) {
    PonerOcupacionSensible(e, texto, mensajes);
  };
  Solo(filas, enlaces_.Linea(filas, "Sensibleocupantes", sensible), Terciario);
  Solo(filas, enlaces_.Linea(filas, "Latenteocupantes", Opciones(tr("Ocupantes, latente"), ayuda)),
       Terciario);
  Solo(filas, enlaces_.Linea(filas, "Equipos", Opciones(tr("Equipos"), ayuda)), Terciario);
  auto* fila = new QHBoxLayout;
  carga_ = new QLabel(caja);
  carga_->setToolTip(
      tr("Carga interna media: ocupación sensible, iluminación y equipos en el año (CTE DB-HE, "
         "anejo A)"));
  fila->addWidget(carga_);
  fila->addSpacing(12);
  nivel_ = NotaCorta(caja);
  fila->addWidget(nivel_);
  fila->addStretch(1);
  filas->addRow(fila);
  return caja;
}

void PaginaUso::CambiarPerfil(int perfil) {
  if (PerfilBorraSistemas(contexto_.Caso(), perfil) &&
      !contexto_.Sesion().Avisos().Preguntar(
          "AVISO", "El cambio entre vivienda y terciario borra los sistemas definidos. ¿Seguir?"))
    return Refrescar();
  contexto_.Editar(tr("Perfil de uso"), [&](Edificio& e) {
    CambiarPerfilUso(e, perfil, contexto_.Ficheros().Xml("PerfilesUso.xml", "PERFILES_USO"),
                     contexto_.Sesion().Avisos());
    ActualizarRenovacionesHS3(e, contexto_.Sesion().Avisos());
  });
  Refrescar();
}

void PaginaUso::TomarClaseAire(std::size_t clase) {
  contexto_.Editar(tr("Clase de aire IDA%1").arg(clase + 1), [&](Edificio& e) {
    AceptarClaseAire(e, static_cast<ClaseAire>(clase), contexto_.Sesion().Avisos());
  });
}

void PaginaUso::TomarAguaDeReferencia() {
  contexto_.Editar(tr("Demanda diaria de agua caliente"), [](Edificio& e) {
    const float volumen = VolumenReferencia(e);
    CambiarGenerales(e, [&](DatosGenerales& g) { g.ConsumoAgua_litros_dia = volumen; });
  });
}

void PaginaUso::RefrescarViviendas() {
  const Ventilacion& v = contexto_.Caso().GetVentilacion();
  // Los tipos que hay y uno más, para añadirlo.
  std::size_t alaVista = 1;
  for (std::size_t t = 0; t < kTipologias; ++t)
    if (v.tipologias[t].N_viviendas > 0) alaVista = t + 2;
  for (std::size_t t = 0; t < kTipologias; ++t) {
    for (QWidget* pieza : filasViviendas_[t]) pieza->setVisible(t < alaVista);
    const TipologiaVivienda& tipo = v.tipologias[t];
    const bool usada = tipo.N_viviendas > 0;
    personas_[t]->setText(usada ? Cifra(PersonasVivienda(tipo.N_dormitorios_dobles), 1) : "–");
    caudales_[t]->setText(usada ? Cifra(CaudalTipologiaHS3(tipo), 1) : "–");
  }
  sumaViviendas_->setText(
      tr("Viviendas: %1. Personas: %2. Las personas de la tabla son de cada vivienda (CTE DB-HE, "
         "anejo F); el caudal, de todas las del tipo")
          .arg(v.NumeroViviendas())
          .arg(Cifra(PersonasTotales(v), 1)));
}

void PaginaUso::RefrescarVentilacion(const AjustesUso& ajustes) {
  const Edificio& e = contexto_.Caso();
  const Ventilacion& v = e.GetVentilacion();
  caudal_->setText(Q(TextoCaudalVentilacion(e)));
  const QString nota = Q(NotaRenovaciones(e.GetDatosGenerales()));
  notaRenovaciones_->setText(nota);
  MostrarFila(filasVentilacion_, notaRenovaciones_, !nota.isEmpty());
  minimoHS3_->setText(tr("El mínimo de DB-HS3 es %1 m3/h").arg(Cifra(CaudalViviendasHS3(v), 2)));
  if (QWidget* renovaciones = enlaces_.Editor("nrenovventilacion"))
    renovaciones->setEnabled(!ajustes.residencial || v.Calcular_Renov_h_segun_HS3 != "Si");
  for (std::size_t clase = 0; clase < clases_.size(); ++clase)
    clases_[clase]->setText(Q(TextoClaseAire(e, static_cast<ClaseAire>(clase))));
  const bool seSabe = CalcularClaseAire(e, ClaseAire::IDA1).renovaciones > 0.0F;
  for (QPushButton* aceptar : aceptarClase_) aceptar->setEnabled(seSabe);
  faltaClase_->setVisible(!seSabe);
}

void PaginaUso::RefrescarIluminacion() {
  const DatosGenerales& g = contexto_.Caso().GetDatosGenerales();
  if (QWidget* limite = enlaces_.Editor("VEIIMax"))
    limite->setEnabled(g.TipoVEIIMax == kVEIIMaxDefinir);
  potenciaMaxima_->setText(Q(TextoPotenciaMaximaIluminacion(g.Lux)));
  PonerPapel(potenciaMaxima_, g.Iluminacion > PotenciaMaximaIluminacion(g.Lux) ? "aviso" : "nota");
  const float cfi = CargaInternaMedia(contexto_.Caso());
  carga_->setText(Q(TextoCargaInterna(cfi)));
  nivel_->setText(Q(NivelCargaInterna(cfi)));
}

void PaginaUso::Refrescar() {
  Pagina::Refrescar();
  const Edificio& e = contexto_.Caso();
  const AjustesUso ajustes = ResolverAjustes(e);
  for (const Condicion& c : condiciones_) {
    if (c.filas != nullptr)
      MostrarFila(c.filas, c.que, c.cuando(ajustes));
    else
      c.que->setVisible(c.cuando(ajustes));
  }
  const Recinto& r = e.GetRecinto(0);
  notaAltura_->setText(
      r.Suelo_habitable_m2 > 0
          ? tr("Altura media %1 m").arg(Cifra(r.Volumen_total_m3 / r.Suelo_habitable_m2, 2))
          : tr("Falta definir el suelo habitable"));
  notaAgua_->setText(tr("La de referencia es %1 l/día").arg(Cifra(VolumenReferencia(e), 0)));
  OfrecerRecuperadores(ajustes.residencial);
  RefrescarViviendas();
  RefrescarVentilacion(ajustes);
  RefrescarIluminacion();
}

}  // namespace novex::gui
