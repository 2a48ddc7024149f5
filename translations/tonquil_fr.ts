<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name></name>
    <message>
        <source>Launch at login is more reliable when the Tonquil is located in the Applications folder.</source>
        <translation>L’ouverture à la connexion est plus fiable lorsque Tonquil se trouve dans le dossier «&#xa0;Applications&#xa0;».</translation>
    </message>
    <message>
        <source>If the app is not launching at next login, try moving it to the Applications folder.</source>
        <translation>Si l’application ne s’ouvre pas à la prochaine connexion, essayez de la déplacer dans le dossier «&#xa0;Applications&#xa0;».</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cannot enable remote configuration</source>
        <translation>Impossible d’activer la configuration à distance</translation>
    </message>
    <message>
        <source>Network broadcast does not appear to work. Please check that only one instance of Tonquil is running on this computer and that UDP ports 44188 and 48184 are not blocked by a firewall.</source>
        <translation>La diffusion sur le réseau ne semble pas fonctionner. Vérifiez qu’une seule instance de Tonquil est ouverte sur cet ordinateur et qu’aucun pare-feu ne bloque les ports UDP 44188 et 48184.</translation>
    </message>
</context>
<context>
    <name>CurvePlot</name>
    <message>
        <source>Red</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
    </message>
    <message>
        <source>Output at input 0, 0.5 and 1.</source>
        <translation>Sortie pour les entrées 0, 0.5 et 1.</translation>
    </message>
    <message>
        <source>The correction is off.</source>
        <translation>La correction est désactivée.</translation>
    </message>
    <message>
        <source>In</source>
        <translation>Entr.</translation>
    </message>
    <message>
        <source>R</source>
        <translation>R</translation>
    </message>
    <message>
        <source>G</source>
        <translation>V</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
</context>
<context>
    <name>Files</name>
    <message>
        <source>Settings of one display (*.tonquil)</source>
        <translation>Réglages d’un écran (*.tonquil)</translation>
    </message>
    <message>
        <source>Settings of all displays (*.tonquil-screens)</source>
        <translation>Réglages de tous les écrans (*.tonquil-screens)</translation>
    </message>
    <message>
        <source>Open settings</source>
        <translation>Ouvrir des réglages</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Save settings</source>
        <translation>Enregistrer les réglages</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>ICC profile of one display (*.icc)</source>
        <translation>Profil ICC d’un écran (*.icc)</translation>
    </message>
    <message>
        <source>Calibration of one display (*.cal)</source>
        <translation>Étalonnage d’un écran (*.cal)</translation>
    </message>
    <message>
        <source>Settings, profiles and tables (*.tonquil *.tonquil-screens *.icc *.icm *.cal *.amp)</source>
        <translation>Réglages, profils et tables (*.tonquil *.tonquil-screens *.icc *.icm *.cal *.amp)</translation>
    </message>
    <message>
        <source>Save as preset</source>
        <translation>Enregistrer comme préréglage</translation>
    </message>
    <message>
        <source>Name of the preset:</source>
        <translation>Nom du préréglage&#xa0;:</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
</context>
<context>
    <name>KVAboutBox</name>
    <message>
        <source>%@ (%@)</source>
        <translation>%@ (%@)</translation>
    </message>
    <message>
        <source>Version %@</source>
        <translation>Version %@</translation>
    </message>
    <message>
        <source>About Tonquil</source>
        <translation>À propos de Tonquil</translation>
    </message>
    <message>
        <source>:/about/Credits.html</source>
        <translation>:/about/Credits_fr.html</translation>
    </message>
</context>
<context>
    <name>KVFluxCheck</name>
    <message>
        <source>%@ is present on this computer.</source>
        <translation>%@ est présent sur cet ordinateur.</translation>
    </message>
    <message>
        <source>[%1$@ installed, might interfer %2$@.]</source>
        <translation>%2$@ modifie les mêmes tables de couleurs que %1$@, et chacun peut écraser ce que l’autre a défini. Quittez ou désactivez %2$@ pendant que vous utilisez %1$@.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
</context>
<context>
    <name>Panel</name>
    <message>
        <source>Apply correction</source>
        <translation>Appliquer la correction</translation>
    </message>
    <message>
        <source>Show panel</source>
        <translation>Afficher le panneau</translation>
    </message>
    <message>
        <source>Show targets</source>
        <translation>Afficher les mires</translation>
    </message>
    <message>
        <source>Open settings…</source>
        <translation>Ouvrir des réglages…</translation>
    </message>
    <message>
        <source>Save settings…</source>
        <translation>Enregistrer les réglages…</translation>
    </message>
    <message>
        <source>Remote configuration is on</source>
        <translation>Configuration à distance activée</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Préférences…</translation>
    </message>
    <message>
        <source>Tonquil on the web</source>
        <translation>Tonquil sur le Web</translation>
    </message>
    <message>
        <source>About calibration targets</source>
        <translation>À propos des mires d’étalonnage</translation>
    </message>
    <message>
        <source>About Tonquil</source>
        <translation>À propos de Tonquil</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>Moins</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Plus</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Point</translation>
    </message>
    <message>
        <source>Focused value</source>
        <translation>Valeur sélectionnée</translation>
    </message>
    <message>
        <source>Channel strip</source>
        <translation>Barre de canaux</translation>
    </message>
    <message>
        <source>Stands for the slider of the focused control; its picker moves the focus.</source>
        <translation>Représente le curseur du contrôle sélectionné&#xa0;; son sélecteur déplace la sélection.</translation>
    </message>
    <message>
        <source>Tonquil</source>
        <translation>Tonquil</translation>
    </message>
    <message>
        <source>Which point of the curve the sliders move.</source>
        <translation>Le point de la courbe que les curseurs déplacent.</translation>
    </message>
    <message>
        <source>Transfer curves</source>
        <translation>Courbes de transfert</translation>
    </message>
    <message>
        <source>Whether the displays show their curves or their own calibration.</source>
        <translation>Indique si les écrans montrent leurs courbes ou leur propre étalonnage.</translation>
    </message>
    <message>
        <source>Reset to calibration</source>
        <translation>Revenir à l’étalonnage</translation>
    </message>
    <message>
        <source>Gives every display its own calibration back and makes the curves neutral.</source>
        <translation>Rend à chaque écran son propre étalonnage et neutralise les courbes.</translation>
    </message>
    <message>
        <source>Opens the window of test patterns to look at while the sliders move.</source>
        <translation>Ouvre la fenêtre des mires à observer pendant que les curseurs bougent.</translation>
    </message>
    <message>
        <source>Blending</source>
        <translation>Fusion</translation>
    </message>
    <message>
        <source>Over calibration</source>
        <translation>Sur l’étalonnage</translation>
    </message>
    <message>
        <source>Absolute</source>
        <translation>Absolue</translation>
    </message>
    <message>
        <source>Whether the curve is laid over the display&apos;s calibration or replaces it.</source>
        <translation>Indique si la courbe se superpose à l’étalonnage de l’écran ou le remplace.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Open recent</source>
        <translation>Ouvrir récent</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>Advanced panel</source>
        <translation>Panneau avancé</translation>
    </message>
    <message>
        <source>Dark theme</source>
        <translation>Thème sombre</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Noir</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Blanc</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Milieu</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
    </message>
    <message>
        <source>Master</source>
        <translation>Global</translation>
    </message>
    <message>
        <source>%1, %2 point</source>
        <translation>%1, point %2</translation>
    </message>
    <message>
        <source>Close the panel</source>
        <translation>Fermer le panneau</translation>
    </message>
    <message>
        <source>Companions on the network may change the displays</source>
        <translation>Les applications compagnons du réseau peuvent modifier les écrans</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Choose which displays are edited</source>
        <translation>Choisir les écrans à modifier</translation>
    </message>
    <message>
        <source>Edited: %1</source>
        <translation>Modifié&#xa0;: %1</translation>
    </message>
    <message>
        <source>Changes are not saved at the moment. Tonquil keeps trying.</source>
        <translation>Les modifications ne sont pas enregistrées pour le moment. Tonquil continue d’essayer.</translation>
    </message>
    <message>
        <source>All displays: an edit replaces the curve of each</source>
        <translation>Tous les écrans : une modification remplace la courbe de chacun</translation>
    </message>
    <message>
        <source>Identify displays</source>
        <translation>Identifier les écrans</translation>
    </message>
    <message>
        <source>Hide the sliders of the colours</source>
        <translation>Masquer les curseurs des couleurs</translation>
    </message>
    <message>
        <source>Show the sliders of the colours</source>
        <translation>Afficher les curseurs des couleurs</translation>
    </message>
    <message>
        <source>Hold to compare with the uncorrected display</source>
        <translation>Maintenir enfoncé pour comparer avec l’écran non corrigé</translation>
    </message>
    <message>
        <source>Corrects this display. Show targets and move the slider until stripes look plain.</source>
        <translation>Corrige l’écran : affichez les mires et déplacez le curseur jusqu’à effacer les rayures.</translation>
    </message>
    <message>
        <source>Drag it, or turn the wheel over it or its number.</source>
        <translation>Faire glisser, ou tourner la molette sur le curseur ou son nombre.</translation>
    </message>
    <message>
        <source>With Ctrl a drag is four times as fine.</source>
        <translation>Avec Ctrl, le glissement est quatre fois plus fin.</translation>
    </message>
    <message>
        <source>With Shift the other colours follow.</source>
        <translation>Avec Maj, les autres couleurs suivent.</translation>
    </message>
    <message>
        <source>A double-click makes it neutral.</source>
        <translation>Un double-clic rétablit la valeur neutre.</translation>
    </message>
    <message>
        <source>An edit replaces the curve of each display</source>
        <translation>Une modification remplace la courbe de chaque écran</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Préréglages</translation>
    </message>
    <message>
        <source>Save as preset…</source>
        <translation>Enregistrer comme préréglage…</translation>
    </message>
    <message>
        <source>Make editable</source>
        <translation>Rendre modifiable</translation>
    </message>
    <message>
        <source>Tonquil: correction on</source>
        <translation>Tonquil : correction activée</translation>
    </message>
    <message>
        <source>Tonquil: correction off</source>
        <translation>Tonquil : correction désactivée</translation>
    </message>
</context>
<context>
    <name>PanelSubject</name>
    <message>
        <source>No display</source>
        <translation>Aucun écran</translation>
    </message>
    <message>
        <source>All displays</source>
        <translation>Tous les écrans</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>Show the panel when Tonquil starts</source>
        <translation>Afficher le panneau à l’ouverture de Tonquil</translation>
    </message>
    <message>
        <source>Start Tonquil at login</source>
        <translation>Ouvrir Tonquil à la connexion</translation>
    </message>
    <message>
        <source>Correct the displays as soon as Tonquil starts</source>
        <translation>Corriger les écrans dès l’ouverture de Tonquil</translation>
    </message>
    <message>
        <source>Apply the curves again every few seconds</source>
        <translation>Réappliquer les courbes toutes les quelques secondes</translation>
    </message>
    <message>
        <source>Show sliders for the single channels</source>
        <translation>Afficher les curseurs de chaque canal</translation>
    </message>
    <message>
        <source>Show the channel strip</source>
        <translation>Afficher la barre de canaux</translation>
    </message>
    <message>
        <source>Show hints under targets</source>
        <translation>Afficher les conseils sous les mires</translation>
    </message>
    <message>
        <source>Dark theme</source>
        <translation>Thème sombre</translation>
    </message>
    <message>
        <source>The display under the panel</source>
        <translation>L’écran sous le panneau</translation>
    </message>
    <message>
        <source>All displays</source>
        <translation>Tous les écrans</translation>
    </message>
    <message>
        <source>Shows the panel</source>
        <translation>Affiche le panneau</translation>
    </message>
    <message>
        <source>Switches the correction on or off</source>
        <translation>Active ou désactive la correction</translation>
    </message>
    <message>
        <source>Show Tonquil in:</source>
        <translation>Afficher Tonquil dans&#xa0;:</translation>
    </message>
    <message>
        <source>The task bar</source>
        <translation>La barre des tâches</translation>
    </message>
    <message>
        <source>The status area</source>
        <translation>La zone d’état</translation>
    </message>
    <message>
        <source>Switch the correction on or off</source>
        <translation>Activer ou désactiver la correction</translation>
    </message>
    <message>
        <source>Show the panel under the pointer</source>
        <translation>Afficher le panneau sous le pointeur</translation>
    </message>
    <message>
        <source>Let companions on the local network read and set the curves</source>
        <translation>Autoriser les applications compagnons du réseau local à lire et à modifier les courbes</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Edits change:</source>
        <translation>Les modifications s’appliquent à&#xa0;:</translation>
    </message>
    <message>
        <source>Starting Tonquil again:</source>
        <translation>Une nouvelle ouverture de Tonquil&#xa0;:</translation>
    </message>
    <message>
        <source>Hot keys</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>Remote</source>
        <translation>À distance</translation>
    </message>
    <message>
        <source>Show the panel</source>
        <translation>Afficher le panneau</translation>
    </message>
    <message>
        <source>Not needed here: no correction is lost unnoticed.</source>
        <translation>Inutile ici&#xa0;: aucune correction ne se perd inaperçue.</translation>
    </message>
    <message>
        <source>Change in desktop…</source>
        <translation>Modifier dans le bureau…</translation>
    </message>
    <message>
        <source>This desktop leaves hot keys to its own settings. Bind these commands to keys there:</source>
        <translation>Ce bureau laisse les raccourcis à ses propres réglages. Associez-y des touches à ces commandes&#xa0;:</translation>
    </message>
    <message>
        <source>No keys given yet</source>
        <translation>Pas encore de touches</translation>
    </message>
    <message>
        <source>Keep night light</source>
        <translation>Conserver l’éclairage nocturne</translation>
    </message>
    <message>
        <source>There is no password: any computer there can do this.</source>
        <translation>Il n’y a pas de mot de passe : tout ordinateur de ce réseau peut le faire.</translation>
    </message>
</context>
<context>
    <name>Problem</name>
    <message>
        <source>UDP port 44188 cannot be used. Another program may have it. It is tried again every 5 seconds.</source>
        <translation>Le port UDP 44188 ne peut pas être utilisé. Un autre programme l’occupe peut-être. Un nouvel essai a lieu toutes les 5 secondes.</translation>
    </message>
    <message>
        <source>The panel is on no display. Move it onto one.</source>
        <translation>Le panneau n’est sur aucun écran. Placez-le sur l’un d’eux.</translation>
    </message>
    <message>
        <source>There is no display that could be corrected.</source>
        <translation>Il n’y a aucun écran à corriger.</translation>
    </message>
    <message>
        <source>No such display</source>
        <translation>Écran introuvable</translation>
    </message>
    <message>
        <source>No display with the reference ID %@ is attached. tonquilctl displays lists them.</source>
        <translation>Aucun écran portant l’identifiant de référence %@ n’est connecté. «&#xa0;tonquilctl displays&#xa0;» en donne la liste.</translation>
    </message>
    <message>
        <source>The file was not opened</source>
        <translation>Le fichier n’a pas été ouvert</translation>
    </message>
    <message>
        <source>No Matching Screens</source>
        <translation>Aucun écran correspondant</translation>
    </message>
    <message>
        <source>Settings from this file apply to different screens than those available on this computer.</source>
        <translation>Les réglages de ce fichier s’appliquent à d’autres écrans que ceux de cet ordinateur.</translation>
    </message>
    <message>
        <source>It holds neither settings nor a whole table of 768 bytes. Nothing has been changed.</source>
        <translation>Il ne contient ni réglages ni table complète de 768 octets. Rien n’a été modifié.</translation>
    </message>
    <message>
        <source>Saving failed</source>
        <translation>Échec de l’enregistrement</translation>
    </message>
    <message>
        <source>Could not save settings at this location.</source>
        <translation>Impossible d’enregistrer les réglages à cet emplacement.</translation>
    </message>
    <message>
        <source>The file name is empty or has a NUL in it.</source>
        <translation>Le nom du fichier est vide ou contient un caractère NUL.</translation>
    </message>
    <message>
        <source>This key combination already does something else in Tonquil.</source>
        <translation>Ce raccourci a déjà une autre fonction dans Tonquil.</translation>
    </message>
    <message>
        <source>Key combinations for all programs are not available on this desktop.</source>
        <translation>Les raccourcis globaux ne sont pas disponibles sur ce bureau.</translation>
    </message>
    <message>
        <source>This display has no gamma ramp.</source>
        <translation>Cet écran n’a pas de table gamma.</translation>
    </message>
    <message>
        <source>There is no X server to talk to: DISPLAY is not set.</source>
        <translation>Aucun serveur X n’est accessible&#xa0;: DISPLAY n’est pas défini.</translation>
    </message>
    <message>
        <source>The X server has no screen.</source>
        <translation>Le serveur X n’a pas d’écran.</translation>
    </message>
    <message>
        <source>The X server has no RandR extension, so its displays cannot be corrected.</source>
        <translation>Le serveur X n’a pas l’extension RandR&#xa0;; ses écrans ne peuvent donc pas être corrigés.</translation>
    </message>
    <message>
        <source>The X server&apos;s RandR extension is older than 1.3, so its displays cannot be corrected.</source>
        <translation>L’extension RandR du serveur X est antérieure à la version 1.3&#xa0;; ses écrans ne peuvent donc pas être corrigés.</translation>
    </message>
    <message>
        <source>This X server only draws into a Wayland desktop: setting its gamma ramps changes nothing.</source>
        <translation>Ce serveur X ne fait que dessiner dans un bureau Wayland&#xa0;: modifier ses tables gamma ne change rien.</translation>
    </message>
    <message>
        <source>This key cannot be part of a key combination for all programs.</source>
        <translation>Cette touche ne peut pas faire partie d’un raccourci global.</translation>
    </message>
    <message>
        <source>The keyboard has no such modifier key for a key combination.</source>
        <translation>Le clavier n’a pas cette touche de modification pour un raccourci.</translation>
    </message>
    <message>
        <source>Tonquil itself already uses this key combination.</source>
        <translation>Tonquil utilise déjà ce raccourci.</translation>
    </message>
    <message>
        <source>The X server keeps this key combination for switching terminals.</source>
        <translation>Le serveur X réserve cette combinaison de touches au changement de terminal.</translation>
    </message>
    <message>
        <source>Another program already uses this key combination.</source>
        <translation>Un autre programme utilise déjà ce raccourci.</translation>
    </message>
    <message>
        <source>The X server has no such key, so it cannot be part of a key combination.</source>
        <translation>Le serveur X ne connaît pas cette touche&#xa0;; elle ne peut donc pas faire partie d’un raccourci.</translation>
    </message>
    <message>
        <source>The X server refuses this key combination.</source>
        <translation>Le serveur X refuse ce raccourci.</translation>
    </message>
    <message>
        <source>The X server has gone, so no key combination can be set.</source>
        <translation>Le serveur X n’est plus là&#xa0;; aucun raccourci ne peut être défini.</translation>
    </message>
    <message>
        <source>The property list is damaged.</source>
        <translation>La liste de propriétés est endommagée.</translation>
    </message>
    <message>
        <source>The property list is too large or too deeply nested.</source>
        <translation>La liste de propriétés est trop volumineuse ou trop imbriquée.</translation>
    </message>
    <message>
        <source>This is not a property list.</source>
        <translation>Ceci n’est pas une liste de propriétés.</translation>
    </message>
    <message>
        <source>The property list is too large.</source>
        <translation>La liste de propriétés est trop volumineuse.</translation>
    </message>
    <message>
        <source>There is not enough memory to read the property list.</source>
        <translation>La mémoire est insuffisante pour lire la liste de propriétés.</translation>
    </message>
    <message>
        <source>There is no room for the curves of so many more displays.</source>
        <translation>Il n’y a pas de place pour les courbes d’autant d’écrans supplémentaires.</translation>
    </message>
    <message>
        <source>no space is left on the disk</source>
        <translation>il n’y a plus de place sur le disque</translation>
    </message>
    <message>
        <source>your share of the disk is used up</source>
        <translation>votre part du disque est épuisée</translation>
    </message>
    <message>
        <source>the file would be larger than is allowed</source>
        <translation>le fichier serait plus grand que permis</translation>
    </message>
    <message>
        <source>you may not write there</source>
        <translation>vous n’avez pas le droit d’y écrire</translation>
    </message>
    <message>
        <source>the disk is read-only</source>
        <translation>le disque est en lecture seule</translation>
    </message>
    <message>
        <source>its folder does not exist</source>
        <translation>son dossier n’existe pas</translation>
    </message>
    <message>
        <source>a part of its path is not a folder</source>
        <translation>une partie de son chemin n’est pas un dossier</translation>
    </message>
    <message>
        <source>its name is too long</source>
        <translation>son nom est trop long</translation>
    </message>
    <message>
        <source>its symbolic links lead in a circle</source>
        <translation>ses liens symboliques tournent en rond</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>c’est un dossier</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>ce n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>it is read-only</source>
        <translation>il est en lecture seule</translation>
    </message>
    <message>
        <source>another program is saving it right now</source>
        <translation>un autre programme est en train de l’enregistrer</translation>
    </message>
    <message>
        <source>The file could not be saved: its name is empty or has a NUL in it.</source>
        <translation>Le fichier n’a pas pu être enregistré : son nom est vide ou contient un caractère NUL.</translation>
    </message>
    <message>
        <source>%@ was saved, but the disk may not have kept it: %@.</source>
        <translation>%@ a été enregistré, mais le disque ne l’a peut-être pas conservé : %@.</translation>
    </message>
    <message>
        <source>%@ could not be saved: %@. The older file was kept.</source>
        <translation>%@ n’a pas pu être enregistré : %@. L’ancien fichier a été conservé.</translation>
    </message>
    <message>
        <source>%@ could not be saved: %@.</source>
        <translation>%@ n’a pas pu être enregistré : %@.</translation>
    </message>
    <message>
        <source>%@ is not a regular file.</source>
        <translation>%@ n’est pas un fichier ordinaire.</translation>
    </message>
    <message>
        <source>%@ could not be read: %@.</source>
        <translation>%@ n’a pas pu être lu : %@.</translation>
    </message>
    <message>
        <source>No such file: %@.</source>
        <translation>Ce fichier n’existe pas : %@.</translation>
    </message>
    <message>
        <source>%@ is not readable by you.</source>
        <translation>Vous n’avez pas le droit de lire %@.</translation>
    </message>
    <message>
        <source>%@ is a symbolic link that leads in a circle.</source>
        <translation>%@ est un lien symbolique qui tourne en rond.</translation>
    </message>
    <message>
        <source>The file name is too long: %@.</source>
        <translation>Le nom du fichier est trop long : %@.</translation>
    </message>
    <message>
        <source>%@ could not be opened: %@.</source>
        <translation>%@ n’a pas pu être ouvert : %@.</translation>
    </message>
    <message>
        <source>%@ is a folder, not a file.</source>
        <translation>%@ est un dossier, pas un fichier.</translation>
    </message>
    <message>
        <source>%@ is larger than %@.</source>
        <translation>%@ dépasse %@.</translation>
    </message>
    <message>
        <source>The folder %@ could not be made: %@.</source>
        <translation>Le dossier %@ n’a pas pu être créé : %@.</translation>
    </message>
    <message>
        <source>%@ is damaged and cannot be moved aside: %@.</source>
        <translation>%@ est endommagé et ne peut pas être mis de côté : %@.</translation>
    </message>
    <message>
        <source>The file has curves for more than %@ displays.</source>
        <translation>Le fichier contient des courbes pour plus de %@ écrans.</translation>
    </message>
    <message>
        <source>There is no Wayland compositor to talk to: WAYLAND_DISPLAY is not set.</source>
        <translation>Il n’y a pas de compositeur Wayland à contacter : WAYLAND_DISPLAY n’est pas défini.</translation>
    </message>
    <message>
        <source>The Wayland compositor does not answer.</source>
        <translation>Le compositeur Wayland ne répond pas.</translation>
    </message>
    <message>
        <source>This Wayland desktop does not let programs correct its displays.</source>
        <translation>Ce bureau Wayland ne laisse pas les programmes corriger ses écrans.</translation>
    </message>
    <message>
        <source>The compositor gives an impossible size for this display&apos;s gamma ramp.</source>
        <translation>Le compositeur indique une taille impossible pour la table gamma de cet écran.</translation>
    </message>
    <message>
        <source>Another program, such as a night light, holds this display&apos;s gamma ramp, or it has none.</source>
        <translation>Un autre programme, par exemple un mode nuit, tient la table gamma de cet écran, ou celui-ci n’en a pas.</translation>
    </message>
    <message>
        <source>The table can be edited now</source>
        <translation>La table peut maintenant être modifiée</translation>
    </message>
    <message>
        <source>A curve has taken its place that differs from it by %@ % of full level at most. Undo brings the table back.</source>
        <translation>Une courbe l’a remplacée, qui s’en écarte d’au plus %@ % du niveau maximal. «&#xa0;Annuler&#xa0;» rétablit la table.</translation>
    </message>
    <message>
        <source>The calibration is not for a display.</source>
        <translation>L’étalonnage n’est pas destiné à un écran.</translation>
    </message>
    <message>
        <source>The calibration file is damaged.</source>
        <translation>Le fichier d’étalonnage est endommagé.</translation>
    </message>
    <message>
        <source>There is no display whose table could be saved.</source>
        <translation>Il n’y a aucun écran dont la table puisse être enregistrée.</translation>
    </message>
    <message>
        <source>The profile&apos;s calibration is damaged.</source>
        <translation>L’étalonnage du profil est endommagé.</translation>
    </message>
    <message>
        <source>The profile is too large.</source>
        <translation>Le profil est trop volumineux.</translation>
    </message>
    <message>
        <source>The colour profile is damaged.</source>
        <translation>Le profil de couleur est endommagé.</translation>
    </message>
    <message>
        <source>The colour profile holds no calibration that could be put on a display.</source>
        <translation>Le profil de couleur ne contient aucun étalonnage applicable à un écran.</translation>
    </message>
    <message>
        <source>The colour profile could not be made.</source>
        <translation>Le profil de couleur n’a pas pu être créé.</translation>
    </message>
    <message>
        <source>It holds no settings.</source>
        <translation>Il ne contient aucun réglage.</translation>
    </message>
    <message>
        <source>There is no preset called &quot;%@&quot;.</source>
        <translation>Il n’y a aucun préréglage nommé «&#xa0;%@&#xa0;».</translation>
    </message>
    <message>
        <source>There is a preset called &quot;%@&quot; already. Nothing was saved.</source>
        <translation>Il y a déjà un préréglage nommé « %@ ». Rien n’a été enregistré.</translation>
    </message>
    <message>
        <source>There is no display whose curve could be saved.</source>
        <translation>Il n’y a aucun écran dont la courbe pourrait être enregistrée.</translation>
    </message>
    <message>
        <source>A preset&apos;s name has up to 50 characters, no slash, and no dot in front. Nothing was saved.</source>
        <translation>Le nom d’un préréglage a 50 caractères au plus, sans barre oblique et sans point au début. Rien n’a été enregistré.</translation>
    </message>
    <message>
        <source>The folder of presets could not be made.</source>
        <translation>Le dossier des préréglages n’a pas pu être créé.</translation>
    </message>
    <message>
        <source>Switch off the desktop&apos;s night light, or end whatever else corrects this display. Tonquil then takes it over within seconds.</source>
        <translation>Désactivez l’éclairage nocturne du bureau ou fermez ce qui corrige cet écran. Tonquil le prendra alors en charge en quelques secondes.</translation>
    </message>
    <message>
        <source>The colour profile with the correction cannot be saved.</source>
        <translation>Le profil de couleur avec la correction ne peut pas être enregistré.</translation>
    </message>
    <message>
        <source>The compositor takes no colour profile for this display while HDR is on.</source>
        <translation>Le compositeur n’accepte pas de profil de couleur pour cet écran tant que le HDR est activé.</translation>
    </message>
    <message>
        <source>The compositor refuses the colour profile for this display.</source>
        <translation>Le compositeur refuse le profil de couleur pour cet écran.</translation>
    </message>
    <message>
        <source>This is not a KDE Plasma desktop.</source>
        <translation>Ce bureau n’est pas KDE Plasma.</translation>
    </message>
    <message>
        <source>The compositor takes no colour profile for this display.</source>
        <translation>Le compositeur n’accepte pas de profil de couleur pour cet écran.</translation>
    </message>
    <message>
        <source>Another program is calibrating this display.</source>
        <translation>Un autre programme étalonne cet écran.</translation>
    </message>
    <message>
        <source>The compositor refuses to have this display corrected.</source>
        <translation>Le compositeur refuse que cet écran soit corrigé.</translation>
    </message>
    <message>
        <source>The session bus does not answer.</source>
        <translation>Le bus de session ne répond pas.</translation>
    </message>
</context>
<context>
    <name>Targets</name>
    <message>
        <source>Colour</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Greyscale</source>
        <translation>Niveaux de gris</translation>
    </message>
    <message>
        <source>Targets</source>
        <translation>Mires</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>Mire</translation>
    </message>
    <message>
        <source>From a little way off, the striped quarters of each coloured square should look as bright as the plain ones.</source>
        <translation>Vus d’un peu loin, les quarts rayés de chaque carré coloré doivent paraître aussi clairs que les quarts unis.</translation>
    </message>
    <message>
        <source>Every step should stand out from the next, down to black and up to white, and no grey should look tinted.</source>
        <translation>Chaque palier doit se distinguer du suivant, jusqu’au noir et jusqu’au blanc, et aucun gris ne doit paraître teinté.</translation>
    </message>
</context>
<context>
    <name>tonquil::DDHotKeyTextField</name>
    <message>
        <source>Type a shortcut</source>
        <translation>Tapez un raccourci</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
</context>
<context>
    <name>tonquil::HotKeyClearButton</name>
    <message>
        <source>Clear shortcut</source>
        <translation>Effacer le raccourci</translation>
    </message>
</context>
</TS>
