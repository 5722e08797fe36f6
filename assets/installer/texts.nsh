; The installer's own texts. "AutoStart" and the names of menu items are those of the program.
!macro Texts LANGUAGE FILE AUTO_START STATISTICS_AND_SETTINGS METER_STAYS
  LangString LanguageFile ${LANG_${LANGUAGE}} "${FILE}"
  LangString AutoStart ${LANG_${LANGUAGE}} "${AUTO_START}"
  LangString StatisticsAndSettings ${LANG_${LANGUAGE}} "${STATISTICS_AND_SETTINGS}"
  LangString MeterStays ${LANG_${LANGUAGE}} `${METER_STAYS}`
!macroend
!insertmacro Texts ENGLISH English "Auto start with Windows" "Statistics and settings" \
  `${PRODUCT} does not end. Choose "Exit" in its menu, then try again.`
!insertmacro Texts FRENCH French "Démarrer avec Windows" "Statistiques et paramètres" \
  `${PRODUCT} ne se ferme pas. Choisissez « Quitter » dans son menu, puis réessayez.`
!insertmacro Texts GERMAN German "Mit Windows starten" "Statistik und Einstellungen" \
  `${PRODUCT} endet nicht. Wählen Sie „Beenden“ in seinem Menü und versuchen Sie es noch einmal.`
!insertmacro Texts JAPANESE Japanese "Windows と同時に自動起動" "統計と設定" \
  `${PRODUCT} が終了しません。メニューの「終了」を選んでから、もう一度お試しください。`
!insertmacro Texts SPANISH Spanish "Iniciar con Windows" "Estadísticas y configuración" \
  `${PRODUCT} no termina. Elija «Salir» en su menú y vuelva a intentarlo.`
!insertmacro Texts TURKISH Turkish "Windows ile başlat" "İstatistikler ve ayarlar" \
  `${PRODUCT} kapanmıyor. Menüsünden "Çıkış" seçeneğini seçip yeniden deneyin.`
