#include "shell/gui/PaginaAdministrativa.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "entry/Sitio.h"
#include "model/Catastro.h"
#include "model/ClavesCampos.h"
#include "shell/Certificador.h"
#include "shell/gui/Filas.h"
#include "shell/gui/MarcoImagen.h"
#include "shell/gui/RejillaTextos.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

constexpr const char* kSinProteccion = "Ninguna";

struct CampoCertificador {
  const char* direccion;
  const char* rotulo;
};
constexpr std::array<CampoCertificador, 11> kCertificador = {{
    {"Certificador_Nombre", "Nombre y apellidos"},
    {"Certificador_NIF", "NIF"},
    {"Certificador_Empresa", "Razón social"},
    {"Certificador_CIF", "CIF"},
    {"Certificador_Direccion", "Domicilio"},
    {"Certificador_Localidad", "Municipio"},
    {"Certificador_CP", "Código postal"},
    {"Certificador_Provincia", "Provincia"},
    {"Certificador_email", "Correo electrónico"},
    {"Certificador_Profesion", "Titulación"},
    {"Certificador_Movil", "Teléfono"},
}};

// La norma de la lista, sin los guiones bajos de su clave.
std::vector<std::string> Rotulos(std::vector<std::string> textos) {
  for (std::string& texto : textos) std::replace(texto.begin(), texto.end(), '_', ' ');
  return textos;
}

}  // namespace

PaginaAdministrativa::PaginaAdministrativa(ContextoGui& contexto, QWidget* padre)
    : Pagina(contexto, padre) {
  auto* columna = new QVBoxLayout(this);
  columna->setContentsMargins(20, 8, 20, 16);
  auto* cajas = new DosColumnas(this);
  cajas->AnadirIzquierda(CajaEdificio());
  cajas->AnadirIzquierda(CajaCatastro());
  cajas->AnadirIzquierda(CajaProteccion());
  cajas->AnadirDerecha(CajaCertificador());
  cajas->AnadirDerecha(CajaImagenes());
  columna->addWidget(cajas);
  columna->addStretch(1);
}

QWidget* PaginaAdministrativa::CajaEdificio() {
  const auto [caja, filas] = NuevaCaja(tr("Edificio"), this);
  filasEdificio_ = filas;
  Ensanchar(
      enlaces_.Linea(filas, "Edificio_Titulo", OpcionesSinCalculo(tr("Nombre del edificio"))));
  Ensanchar(enlaces_.Linea(filas, "Direccion", OpcionesSinCalculo(tr("Dirección"))));
  // La marca del clima va en este campo, así que puede cambiar los resultados.
  enlaces_.Linea(filas, "CodigoPostal", Opciones(tr("Código postal")));
  notaPostal_ = NuevaNota(caja, "aviso");
  filas->addRow(QString(), notaPostal_);
  auto* fecha =
      enlaces_.Celda("Fecha", OpcionesSinCalculo(tr("Fecha del certificado"), tr("dd/mm/aaaa")));
  fecha->setMinimumWidth(110);
  auto* fila = new QHBoxLayout;
  fila->addWidget(fecha);
  fila->addWidget(BotonCalendario(fecha, caja));
  fila->addStretch(1);
  filas->addRow(tr("Fecha del certificado"), fila);
  enlaces_.Lista(filas, "AnoConstruccion", Textos(TextosDeCampo("AnoConstruccion")),
                 OpcionesSinCalculo(tr("Año de construcción")));
  const auto edificacion = Textos(TextosDeCampo("NormativaEdificacion"));
  enlaces_.Lista(
      filas, "NormativaEdificacion", edificacion,
      OpcionesSinCalculo(tr("Normativa de la edificación"), tr("La vigente al construirlo")),
      Rotulos(edificacion));
  const auto instalaciones = Textos(TextosDeCampo("NormativaInstalaciones"));
  enlaces_.Lista(filas, "NormativaInstalaciones", instalaciones,
                 OpcionesSinCalculo(tr("Normativa de las instalaciones")), Rotulos(instalaciones));
  Ensanchar(enlaces_.Linea(filas, "Otra_legislacion_aplicable",
                           OpcionesSinCalculo(tr("Otra legislación aplicable"))));
  return caja;
}

QWidget* PaginaAdministrativa::CajaCatastro() {
  const auto [caja, filas] = NuevaCaja(tr("Referencias catastrales"), this);
  enlaces_.Lista(filas, "Registro", Textos(kRegistrosCatastro),
                 OpcionesSinCalculo(tr("Registro"), tr("El que da la referencia y su forma")));
  catastro_ =
      new RejillaTextos(static_cast<int>(kPartesCatastro.size()), tr("Añadir referencia"),
                        tr("Añada al menos una referencia: el certificado la necesita"), caja);
  catastro_->setObjectName("SGCatastro");
  filas->addRow(catastro_);
  notaCatastro_ = NuevaNota(caja);
  filas->addRow(notaCatastro_);
  connect(catastro_, &RejillaTextos::Cambiada, this, [this](const RejillaTextos::Filas& nuevas) {
    contexto_.Editar(
        tr("Referencias catastrales"),
        [&](Edificio& e) {
          DatosPantalla pantalla = e.GetDatosPantalla();
          pantalla.referencias.clear();
          for (const QStringList& f : nuevas)
            pantalla.referencias.push_back({S(f.value(0)), S(f.value(1)), S(f.value(2))});
          e.SetDatosPantalla(std::move(pantalla));
        },
        false);
    RefrescarCatastro();
  });
  return caja;
}

QWidget* PaginaAdministrativa::CajaProteccion() {
  const auto [caja, filas] = NuevaCaja(tr("Protección"), this);
  enlaces_.Lista(
      filas, "GradoProteccion", Textos(TextosDeCampo("GradoProteccion")),
      OpcionesSinCalculo(tr("Grado de protección"), tr("Del planeamiento o del patrimonio")));
  rotuloInalterables_ = NuevaNota(caja);
  rotuloInalterables_->setText(tr("Elementos que la protección no deja cambiar"));
  filas->addRow(rotuloInalterables_);
  inalterables_ = new RejillaTextos(2, tr("Añadir elemento"),
                                    tr("Añada los elementos inalterables, si los hay"), caja);
  inalterables_->setObjectName("Inalterables");
  inalterables_->PonerTitulos({tr("Tipo"), tr("Descripción")});
  QStringList clases;
  for (const std::string_view clase : kClasesInalterables) clases << Q(clase);
  inalterables_->PonerOpciones(0, clases);
  filas->addRow(inalterables_);
  connect(inalterables_, &RejillaTextos::Cambiada, this,
          [this](const RejillaTextos::Filas& nuevas) {
            contexto_.Editar(
                tr("Elementos inalterables"),
                [&](Edificio& e) {
                  DatosPantalla pantalla = e.GetDatosPantalla();
                  pantalla.inalterables.clear();
                  for (const QStringList& f : nuevas)
                    pantalla.inalterables.push_back({f.value(0).isEmpty()
                                                         ? std::string(kClasesInalterables.front())
                                                         : S(f.value(0)),
                                                     S(f.value(1))});
                  e.SetDatosPantalla(std::move(pantalla));
                },
                false);
            RefrescarProteccion();
          });
  return caja;
}

QWidget* PaginaAdministrativa::CajaCertificador() {
  const auto [caja, filas] = NuevaCaja(tr("Técnico certificador"), this);
  for (const CampoCertificador& campo : kCertificador)
    Ensanchar(enlaces_.Linea(filas, campo.direccion, OpcionesSinCalculo(campo.rotulo)));
  auto* botones = new QHBoxLayout;
  const auto boton = [&](const char* nombre, const QString& texto, const QString& ayuda,
                         void (PaginaAdministrativa::*hacer)()) {
    auto* b = new QPushButton(texto, caja);
    b->setObjectName(nombre);
    b->setToolTip(ayuda);
    botones->addWidget(b);
    connect(b, &QPushButton::clicked, this, hacer);
  };
  boton("AlmacenarCertificador", tr("Almacenar datos certificador"),
        tr("Los guarda para los demás proyectos; no puede haber ninguno en blanco"),
        &PaginaAdministrativa::AlmacenarCertificador);
  boton("RecuperarCertificador", tr("Recuperar datos certificador"),
        tr("Pone aquí los que se guardaron"), &PaginaAdministrativa::RecuperarCertificador);
  botones->addStretch(1);
  filas->addRow(botones);
  notaCertificador_ = NuevaNota(caja);
  notaCertificador_->hide();
  filas->addRow(notaCertificador_);
  return caja;
}

QWidget* PaginaAdministrativa::CajaImagenes() {
  auto* caja = new QGroupBox(tr("Imágenes"), this);
  auto* fila = new QHBoxLayout(caja);
  PonerMargenes(caja);
  edificio_ = new MarcoImagen(contexto_, LugarImagen::Edificio, tr("Edificio"), caja);
  edificio_->setObjectName("ImagenEdificio");
  plano_ = new MarcoImagen(contexto_, LugarImagen::Plano, tr("Plano"), caja);
  plano_->setObjectName("ImagenPlano");
  fila->addWidget(edificio_);
  fila->addWidget(plano_);
  fila->addStretch(1);
  return caja;
}

void PaginaAdministrativa::AlmacenarCertificador() {
  const bool hecho =
      GuardarCertificador(FicheroCertificador(contexto_.Ficheros().Espacio()),
                          contexto_.Caso().GetDatosGenerales(), contexto_.Sesion().Avisos());
  notaCertificador_->setText(tr("Datos almacenados"));
  notaCertificador_->setVisible(hecho);
}

void PaginaAdministrativa::RecuperarCertificador() {
  bool hay = false;
  contexto_.Editar(
      tr("Recuperar datos certificador"),
      [&](Edificio& e) {
        DatosGenerales g = e.GetDatosGenerales();
        hay = LeerCertificador(FicheroCertificador(contexto_.Ficheros().Espacio()), g,
                               contexto_.Sesion().Avisos());
        e.SetDatosGenerales(std::move(g));
      },
      false);
  notaCertificador_->setText(hay ? tr("Datos recuperados") : tr("No hay datos almacenados"));
  notaCertificador_->show();
}

void PaginaAdministrativa::RefrescarCatastro() {
  const DatosPantalla& pantalla = contexto_.Caso().GetDatosPantalla();
  const auto rotulos = RotulosCatastro(pantalla.Registro);
  QStringList titulos;
  // El guion y la raya van juntos en su línea.
  for (const std::string_view rotulo : rotulos)
    titulos << Q(rotulo).replace(" (", "\n(").replace("-_", QString("-") + QChar(0x2060) + "_");
  catastro_->PonerTitulos(titulos);
  RejillaTextos::Filas filas;
  for (const ReferenciaCatastral& r : pantalla.referencias)
    filas.push_back({Q(r.Parcela), Q(r.Inmueble), Q(r.Parte)});
  catastro_->PonerFilas(filas);
  for (std::size_t f = 0; f < filas.size(); ++f)
    for (std::size_t c = 0; c < kPartesCatastro.size(); ++c) {
      const int columna = static_cast<int>(c);
      const std::string_view juicio =
          ComprobarParteCatastro(S(filas[f][columna]), pantalla.Registro, kPartesCatastro[c]);
      catastro_->Senalar(static_cast<int>(f), columna, juicio == kCorrecto,
                         Q(juicio) + ". " + Q(rotulos[c]));
    }
  const bool bien = ComprobarReferencias(pantalla.referencias, pantalla.Registro);
  notaCatastro_->setText(bien ? tr("Las referencias tienen la forma que pide el registro")
                              : tr("El fichero para la administración no se genera hasta que todas "
                                   "las celdas sean correctas"));
  PonerPapel(notaCatastro_, bien ? "nota" : "aviso");
  notaCatastro_->setVisible(!filas.empty());
}

void PaginaAdministrativa::RefrescarProteccion() {
  const Edificio& e = contexto_.Caso();
  const bool protegido = e.GetDatosGenerales().GradoProteccion != kSinProteccion;
  RejillaTextos::Filas filas;
  for (const ElementoInalterable& i : e.GetDatosPantalla().inalterables)
    filas.push_back({Q(i.Tipo), Q(i.Descripcion)});
  inalterables_->PonerFilas(filas);
  inalterables_->setVisible(protegido);
  rotuloInalterables_->setVisible(protegido);
}

void PaginaAdministrativa::Refrescar() {
  Pagina::Refrescar();
  const DatosGenerales& g = contexto_.Caso().GetDatosGenerales();
  const bool conMarca = JuegoClima(g) != kJuegosClima.front();
  notaPostal_->setText(tr("Es la marca de los datos de clima de %1. Con un código postal se "
                          "calcula con los oficiales")
                           .arg(Q(JuegoClima(g))));
  MostrarFila(filasEdificio_, notaPostal_, conMarca);
  RefrescarCatastro();
  RefrescarProteccion();
  edificio_->Refrescar();
  plano_->Refrescar();
}

}  // namespace novex::gui
