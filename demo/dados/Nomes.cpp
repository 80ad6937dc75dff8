#include "demo/dados/Nomes.h"

#include <QStringList>

using namespace Qt::Literals::StringLiterals;

namespace {

TStringArray Lista(const UnicodeString& palavras) {
    const auto partes = palavras.split(u';');
    return TStringArray(partes.begin(), partes.end());
}

}  // namespace

const TStringArray& Prenomes() {
    static const TStringArray lista = Lista(
        u"Adriana;Alice;Aline;Amanda;Ana;Ana Paula;Andréa;Ângela;Antônia;Beatriz;Bianca;Bruna;Camila;"
        u"Carla;Carolina;Cássia;Cecília;Célia;Cláudia;Conceição;Cristina;Daniela;Débora;Eduarda;Elaine;"
        u"Eliane;Érica;Fabiana;Fátima;Fernanda;Flávia;Francisca;Gabriela;Giovana;Glória;Helena;Heloísa;"
        u"Inês;Isabel;Isadora;Jéssica;Joana;Josefa;Júlia;Juliana;Karina;Larissa;Laura;Letícia;Lívia;"
        u"Lúcia;Luciana;Luísa;Luzia;Manuela;Márcia;Maria;Maria Aparecida;Maria Clara;Mariana;Marlene;"
        u"Marta;Mônica;Natália;Patrícia;Paula;Priscila;Rafaela;Raquel;Regina;Renata;Rita;Rosa;"
        u"Rosângela;Sandra;Silvana;Simone;Sílvia;Sônia;Sofia;Tatiana;Teresa;Valéria;Vanessa;Vera;"
        u"Vitória;Viviane;Adão;Adriano;Alexandre;Anderson;André;Antônio;Arthur;Augusto;Benedito;"
        u"Bernardo;Bruno;Caio;Carlos;Carlos Eduardo;César;Cícero;Cláudio;Daniel;Davi;Diego;Domingos;"
        u"Edson;Eduardo;Emerson;Enzo;Fábio;Felipe;Fernando;Flávio;Francisco;Gabriel;Geraldo;Gilberto;"
        u"Guilherme;Gustavo;Heitor;Henrique;Hugo;Igor;Ítalo;Ivan;Jair;João;João Batista;João Pedro;"
        u"Joaquim;Jorge;José;José Carlos;Josué;Júlio;Leandro;Leonardo;Lourenço;Lucas;Luís;Luiz;Manoel;"
        u"Márcio;Marcelo;Marcos;Mário;Mateus;Maurício;Mauro;Miguel;Moisés;Murilo;Nélson;Nilton;Otávio;"
        u"Paulo;Paulo César;Pedro;Rafael;Raimundo;Raul;Reinaldo;Renato;Ricardo;Roberto;Rodrigo;Rogério;"
        u"Ronaldo;Samuel;Sebastião;Sérgio;Severino;Sílvio;Thiago;Tomás;Ubirajara;Valdir;Vicente;"
        u"Vinícius;Vítor;Wagner;Wellington;Wilson"_s);
    return lista;
}

const TStringArray& Sobrenomes() {
    static const TStringArray lista = Lista(
        u"Abreu;Aguiar;Albuquerque;Almeida;Alves;Amaral;Amorim;Andrade;Antunes;Araújo;Assis;Azevedo;"
        u"Barbosa;Barros;Batista;Bezerra;Borges;Braga;Brandão;Brito;Cabral;Caldas;Câmara;Campos;"
        u"Cardoso;Carneiro;Carvalho;Castro;Cavalcanti;Coelho;Conceição;Cordeiro;Correia;Costa;Coutinho;"
        u"Cruz;Cunha;D'Ávila;Damasceno;Dias;Diniz;Duarte;Esteves;Farias;Fernandes;Ferraz;Ferreira;"
        u"Figueiredo;Fonseca;Fontes;França;Franco;Freire;Freitas;Furtado;Galvão;Garcia;Gomes;Gonçalves;"
        u"Gouveia;Guerra;Guimarães;Jesus;Lacerda;Leal;Leite;Lemos;Lima;Lins;Lopes;Macedo;Machado;"
        u"Maciel;Magalhães;Maia;Marinho;Marques;Martins;Matos;Medeiros;Meireles;Melo;Mendes;Menezes;"
        u"Miranda;Monteiro;Moraes;Moreira;Mota;Moura;Nascimento;Navarro;Neves;Nogueira;Nunes;Oliveira;"
        u"Pacheco;Paiva;Paixão;Peixoto;Pereira;Pimentel;Pinheiro;Pinto;Pires;Portela;Prado;Queiroz;"
        u"Ramos;Rangel;Rebouças;Rezende;Ribeiro;Rocha;Rodrigues;Sá;Sales;Sampaio;Santana;Santos;Silva;"
        u"Silveira;Simões;Siqueira;Soares;Souza;Tavares;Távora;Teixeira;Teles;Toledo;Torres;Valença;"
        u"Vargas;Vasconcelos;Vaz;Viana;Vidal;Vieira;Xavier"_s);
    return lista;
}

const TStringArray& Negocios() {
    static const TStringArray lista = Lista(
        u"Armazém;Atacado;Auto Center;Casa;Central;Comercial;Construtora;Depósito;Distribuidora;"
        u"Empório;Fábrica;Indústria;Irmãos;Loja;Mercado;Oficina;Padaria;Papelaria;Rede;Supermercado;"
        u"Transportadora"_s);
    return lista;
}

const TStringArray& Ramos() {
    static const TStringArray lista = Lista(
        u"Alimentos;Artigos Esportivos;Autopeças;Bebidas;Calçados;Confecções;Cosméticos;Eletrônicos;"
        u"Embalagens;Ferragens;Frios e Laticínios;Grãos;Informática;Jardinagem;Livros;Madeiras;"
        u"Materiais de Construção;Material Elétrico;Móveis;Pães e Doces;Peças Agrícolas;"
        u"Produtos de Limpeza;Tecidos;Tintas;Utilidades"_s);
    return lista;
}
