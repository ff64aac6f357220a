#pragma once

#include <string_view>

// Written by scripts/make-locale-table from Unicode CLDR 48.2.0: all of its locales.

namespace gx {

struct NSLocaleExpectation {
    std::string_view separator;
    bool isRightToLeft;
    std::string_view locales;
};

// clang-format off
inline constexpr NSLocaleExpectation localeExpectations[] = {
    {",", false,
     "af af_NA agq ast az az_Cyrl az_Latn bas be be_tarask bg blo br bs bs_Cyrl bs_Latn bua "
     "ca ca_AD ca_ES_valencia ca_FR ca_IT cs cv da da_GL de de_AT de_BE de_IT de_LU dsb dua "
     "dyo el el_CY el_polyton en_AT en_BE en_CZ en_DE en_DK en_EE en_ES en_FI en_FR en_GE "
     "en_HU en_ID en_IT en_LT en_LV en_NL en_NO en_PL en_PT en_RO en_SE en_SI en_SK en_UA "
     "en_ZA eo es es_AR es_BO es_CL es_CO es_CR es_EA es_EC es_GQ es_IC es_PH es_PY es_UY "
     "es_VE et eu ewo ff ff_Latn ff_Latn_BF ff_Latn_CM ff_Latn_GH ff_Latn_GM ff_Latn_GN "
     "ff_Latn_GW ff_Latn_LR ff_Latn_MR ff_Latn_NE ff_Latn_NG ff_Latn_SL fi fo fo_DK fr fr_BE "
     "fr_BF fr_BI fr_BJ fr_BL fr_CA fr_CD fr_CF fr_CG fr_CH fr_CI fr_CM fr_DJ fr_DZ fr_GA "
     "fr_GF fr_GN fr_GP fr_GQ fr_HT fr_KM fr_LU fr_MA fr_MC fr_MF fr_MG fr_ML fr_MQ fr_MR "
     "fr_MU fr_NC fr_NE fr_PF fr_PM fr_RE fr_RW fr_SC fr_SN fr_SY fr_TD fr_TG fr_TN fr_VU "
     "fr_WF fr_YT fur fy gl hr hr_BA hsb ht hu hy ia id ie is it it_SM it_VA jgo jv ka kab "
     "kea kgp kk kk_Cyrl kk_KZ kkj kl ksf ksh ku ku_Latn ku_Latn_IQ ku_Latn_SY ku_TR ky lb "
     "lij lld lmo ln ln_AO ln_CF ln_CG lo lt lu lv mgh mk ms_BN ms_ID mua nb nb_SJ nds nds_NL "
     "nl nl_AW nl_BE nl_BQ nl_CW nl_SR nl_SX nmg nn nnh no nr oc oc_ES os os_RU pl pms prg pt "
     "pt_AO pt_CH pt_CV pt_GQ pt_GW pt_LU pt_MO pt_MZ pt_PT pt_ST pt_TL qu_BO rm rn ro ro_MD "
     "ru ru_BY ru_KG ru_KZ ru_MD ru_UA rw sah sc scn se se_FI se_SE seh sg shi shi_Latn "
     "shi_Tfng sk sl smn sq sq_MK sq_XK sr sr_Cyrl sr_Cyrl_BA sr_Cyrl_ME sr_Cyrl_XK sr_Latn "
     "sr_Latn_BA sr_Latn_ME sr_Latn_XK ss ss_SZ su su_Latn sv sv_AX sv_FI sw_CD szl tg tk tok "
     "tr tr_CY ts tt tzm uk uz uz_Cyrl uz_Latn ve vec vi vmw wae wo yav yrl yrl_CO yrl_VE zgh "},
    {",", true,
     "ar_DZ ar_LY ar_MA ar_TN ms_Arab_BN "},
    {".", false,
     "aa aa_DJ aa_ER ab ak am an ann arn as asa ba bal_Latn bem bew bez bgc bho blt bm bn "
     "bn_IN bo bo_IN brx bss byn cad cch ccp ccp_IN ce ceb cgg cho chr cic co cop csw cu cy "
     "dav de_CH de_LI dje doi dz ebu ee ee_TG en en_001 en_150 en_AE en_AG en_AI en_AS en_AU "
     "en_BB en_BI en_BM en_BS en_BW en_BZ en_CA en_CC en_CH en_CK en_CM en_CX en_CY en_DG "
     "en_DM en_Dsrt en_ER en_FJ en_FK en_FM en_GB en_GD en_GG en_GH en_GI en_GM en_GS en_GU "
     "en_GY en_HK en_IE en_IL en_IM en_IN en_IO en_JE en_JM en_JP en_KE en_KI en_KN en_KY "
     "en_LC en_LR en_LS en_MG en_MH en_MO en_MP en_MS en_MT en_MU en_MV en_MW en_MY en_NA "
     "en_NF en_NG en_NR en_NU en_NZ en_PG en_PH en_PK en_PN en_PR en_PW en_RW en_SB en_SC "
     "en_SD en_SG en_SH en_SL en_SS en_SX en_SZ en_Shaw en_TC en_TK en_TO en_TT en_TV en_TZ "
     "en_UG en_UM en_VC en_VG en_VI en_VU en_WS en_ZM en_ZW es_419 es_BR es_BZ es_CU es_DO "
     "es_GT es_HN es_MX es_NI es_PA es_PE es_PR es_SV es_US fil frr ga ga_GB gaa gd gez "
     "gez_ER gn gsw gsw_FR gsw_LI gu guz gv ha ha_GH ha_NE haw hi hi_Latn hnj hnj_Hmnp ig ii "
     "io it_CH iu iu_Latn ja jbo jmc kaa kaa_Cyrl kaa_Latn kaj kam kcg kde kek ken khq ki kln "
     "km kn ko ko_CN ko_KP kok kok_Deva kok_Latn kpe kpe_GN ks_Deva ksb kw kxv kxv_Deva "
     "kxv_Latn kxv_Orya kxv_Telu la lag lg lkt ltg luo luy lzz mai mas mas_TZ mdf mer mfe mg "
     "mgo mhn mi mic ml mn mn_Mong mn_Mong_MN mni mni_Beng mni_Mtei moh mr ms ms_SG mt mus "
     "mww mww_Hmnp my myv naq nd ne ne_IN nso nus nv ny nyn oka oka_US om om_KE or osa pa "
     "pa_Guru pap pap_AW pcm pi pi_Latn pis qu qu_EC quc raj rif rof rwk sa saq sat sat_Deva "
     "sat_Olck sbp sd_Deva ses sgs shn shn_TH si sid sma sma_NO smj smj_NO sms sn so so_DJ "
     "so_ET so_KE ssy st st_LS suz suz_Deva suz_Sunu sw sw_KE sw_UG ta ta_LK ta_MY ta_SG te "
     "teo teo_KE th ti ti_ER tig tn tn_BW to tpi trv twq tyv und vai vai_Latn vai_Vaii vo vun "
     "wa wal wbp xh xnr xog yo yo_BJ yue yue_Hans yue_Hant yue_Hant_CN yue_Hant_MO za zh "
     "zh_Hans zh_Hans_HK zh_Hans_MO zh_Hans_MY zh_Hans_SG zh_Hant zh_Hant_HK zh_Hant_MO "
     "zh_Hant_MY zh_Latn zu "},
    {".", true,
     "apc ar ar_AE ar_EH bal bal_Arab bm_Nkoo bqi dv ff_Adlm ff_Adlm_BF ff_Adlm_CM ff_Adlm_GH "
     "ff_Adlm_GM ff_Adlm_GW ff_Adlm_LR ff_Adlm_MR ff_Adlm_NE ff_Adlm_NG ff_Adlm_SL ff_Adlm_SN "
     "ha_Arab ha_Arab_SD he kk_Arab ku_Arab ku_Arab_IR ms_Arab nqo rhg rhg_Rohg rhg_Rohg_BD "
     "sd sd_Arab skr syr syr_SY trw ug ur yi "},
    {"٫", true,
     "ar_BH ar_DJ ar_EG ar_ER ar_IL ar_IQ ar_JO ar_KM ar_KW ar_LB ar_MR ar_OM ar_PS ar_QA "
     "ar_SA ar_SD ar_SO ar_SS ar_SY ar_TD ar_YE az_Arab az_Arab_IQ az_Arab_TR bgn bgn_AE "
     "bgn_AF bgn_IR bgn_OM ckb ckb_IR fa fa_AF ks ks_Arab lrc lrc_IQ mzn pa_Arab ps ps_PK sdh "
     "sdh_IQ ur_IN uz_Arab "},
};
// clang-format on

} // namespace gx
