<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AttentionFilterButton</name>
    <message>
        <source>Show, filtered</source>
        <translation>Afficher (filtré)</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
</context>
<context>
    <name>AttentionFilterScene</name>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Group by</source>
        <translation>Grouper par</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>Gravité</translation>
    </message>
    <message>
        <source>Console</source>
        <translation>Console</translation>
    </message>
    <message>
        <source>Kinds</source>
        <translation>Types</translation>
    </message>
    <message>
        <source>Consoles</source>
        <translation>Consoles</translation>
    </message>
    <message>
        <source>Find a console</source>
        <translation>Rechercher une console</translation>
    </message>
</context>
<context>
    <name>AttentionNowContent</name>
    <message>
        <source>Now</source>
        <translation>Maintenant</translation>
    </message>
    <message>
        <source>No consoles yet.</source>
        <translation>Aucune console pour l’instant.</translation>
    </message>
    <message>
        <source>Add Corvel</source>
        <translation>Ajouter un Corvel</translation>
    </message>
</context>
<context>
    <name>AttentionScene</name>
    <message>
        <source>Now</source>
        <translation>Maintenant</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Changements</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Événements</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>Attention</translation>
    </message>
</context>
<context>
    <name>AttentionWatchButton</name>
    <message>
        <source>Watch</source>
        <translation>Surveillance</translation>
    </message>
</context>
<context>
    <name>ChangesCard</name>
    <message>
        <source>Worse, above</source>
        <translation>Pire, en haut</translation>
    </message>
    <message>
        <source>Better, below</source>
        <translation>Mieux, en bas</translation>
    </message>
</context>
<context>
    <name>ChangesContent</name>
    <message>
        <source>Show all</source>
        <translation>Tout afficher</translation>
    </message>
</context>
<context>
    <name>ChosenLine</name>
    <message>
        <source>Show all</source>
        <translation>Tout afficher</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>%1 needs a value: %2.</source>
        <extracomment>%1 an option, %2 a word for what it takes</extracomment>
        <translation>%1 demande une valeur&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Only this console, by name or address; may be repeated.</source>
        <translation>Seulement cette console, par nom ou adresse&#xa0;; répétable.</translation>
    </message>
    <message>
        <source>Write JSON.</source>
        <translation>Écrire du JSON.</translation>
    </message>
    <message>
        <source>Write comma-separated values.</source>
        <translation>Écrire des valeurs séparées par des virgules.</translation>
    </message>
    <message>
        <source>Use this data folder instead of Lodestar&apos;s own.</source>
        <translation>Utiliser ce dossier de données au lieu de celui de Lodestar.</translation>
    </message>
    <message>
        <source>Say how the command is used.</source>
        <translation>Dire comment la commande s’utilise.</translation>
    </message>
    <message>
        <source>Say which version this is.</source>
        <translation>Dire quelle est la version.</translation>
    </message>
    <message>
        <source>%1 takes a number, not %2.</source>
        <extracomment>%1 an option, %2 what was given</extracomment>
        <translation>%1 demande un nombre, pas %2.</translation>
    </message>
    <message>
        <source>%1 takes minutes, or a time as 30s or 2h, not %2.</source>
        <translation>%1 demande des minutes, ou une durée comme 30s ou 2h, pas %2.</translation>
    </message>
    <message>
        <source>There is no option %1.</source>
        <translation>Il n’y a pas d’option %1.</translation>
    </message>
    <message>
        <source>%1 takes no value.</source>
        <translation>%1 ne prend pas de valeur.</translation>
    </message>
    <message>
        <source>No command was given.</source>
        <translation>Aucune commande n’a été donnée.</translation>
    </message>
    <message>
        <source>There is no command %1.</source>
        <translation>Il n’y a pas de commande %1.</translation>
    </message>
    <message>
        <source>%1 takes no option %2.</source>
        <translation>%1 n’a pas d’option %2.</translation>
    </message>
    <message>
        <source>It is used so: %1</source>
        <translation>Elle s’utilise ainsi&#xa0;: %1</translation>
    </message>
    <message>
        <source>--json and --csv exclude one another.</source>
        <translation>--json et --csv s’excluent.</translation>
    </message>
    <message>
        <source>Watches Corvel consoles and changes nothing.</source>
        <translation>Surveille des consoles Corvel et ne change rien.</translation>
    </message>
    <message>
        <source>With every command:</source>
        <translation>Avec chaque commande&#xa0;:</translation>
    </message>
    <message>
        <source>Ends with 0 when all is well, 1 after warnings, 2 after errors, and 3 when that is not known.</source>
        <translation>Finit par 0 quand tout va bien, 1 après des avertissements, 2 après des erreurs et 3 quand on ne le sait pas.</translation>
    </message>
    <message>
        <source>Read passwords from descriptor N, one a line.</source>
        <translation>Lire les mots de passe du descripteur N, un par ligne.</translation>
    </message>
    <message>
        <source>Tell how all consoles are. The exit code says how the fleet is.</source>
        <translation>Dire comment vont toutes les consoles. Le code de sortie le dit aussi.</translation>
    </message>
    <message>
        <source>List everything that needs attention. The exit code as with status.</source>
        <translation>Lister tout ce qui demande votre attention. Code de sortie comme status.</translation>
    </message>
    <message>
        <source>List consoles, systems, io-servers, partitions, events or groups.</source>
        <translation>Lister consoles, systems, io-servers, partitions, events ou groups.</translation>
    </message>
    <message>
        <source>Show every field as a column, not only the usual ones.</source>
        <translation>Montrer chaque champ en colonne, pas seulement les habituels.</translation>
    </message>
    <message>
        <source>Show one object, by identifier, name or number.</source>
        <translation>Montrer un objet, par identifiant, nom ou numéro.</translation>
    </message>
    <message>
        <source>List serviceable events.</source>
        <translation>Lister les événements de service.</translation>
    </message>
    <message>
        <source>Only open ones.</source>
        <translation>Seulement les ouverts.</translation>
    </message>
    <message>
        <source>Only those that are reported to the maker.</source>
        <translation>Seulement ceux qui sont signalés au fabricant.</translation>
    </message>
    <message>
        <source>sent, newest (as at first), status or code.</source>
        <translation>sent, newest (par défaut), status ou code.</translation>
    </message>
    <message>
        <source>Show processors and memory of a system over the last half day.</source>
        <translation>Montrer processeurs et mémoire d’un système sur la dernière demi-journée.</translation>
    </message>
    <message>
        <source>With --csv: memory instead of processors.</source>
        <translation>Avec --csv&#xa0;: la mémoire au lieu des processeurs.</translation>
    </message>
    <message>
        <source>Read the consoles again and again, and write a line for each change.</source>
        <translation>Lire les consoles encore et encore, et écrire une ligne par changement.</translation>
    </message>
    <message>
        <source>Minutes between readings, or 30s, 2h; at first as Lodestar&apos;s Watch has it.</source>
        <translation>Minutes entre les lectures, ou 30s, 2h&#xa0;; par défaut comme la surveillance de Lodestar.</translation>
    </message>
    <message>
        <source>End after so many readings.</source>
        <translation>Finir après ce nombre de lectures.</translation>
    </message>
    <message>
        <source>Write how all consoles are as OpenMetrics, for Prometheus.</source>
        <translation>Écrire l’état de toutes les consoles en OpenMetrics, pour Prometheus.</translation>
    </message>
    <message>
        <source>Replace this file, for a collector of text files; - is standard output.</source>
        <translation>Remplacer ce fichier, pour un collecteur de fichiers texte&#xa0;; - est la sortie standard.</translation>
    </message>
    <message>
        <source>Serve it at /metrics instead, on this machine only; ADDRESS:PORT, too.</source>
        <translation>Le servir plutôt à /metrics, sur cette machine seulement&#xa0;; ADRESSE:PORT aussi.</translation>
    </message>
    <message>
        <source>With --listen: minutes between readings, or 30s, 2h.</source>
        <translation>Avec --listen&#xa0;: minutes entre les lectures, ou 30s, 2h.</translation>
    </message>
    <message>
        <source>Also its processors and memory; may be repeated.</source>
        <translation>Aussi ses processeurs et sa mémoire&#xa0;; répétable.</translation>
    </message>
    <message>
        <source>List the registered consoles without asking them.</source>
        <translation>Lister les consoles enregistrées sans les interroger.</translation>
    </message>
    <message>
        <source>Verify a console and register it.</source>
        <translation>Vérifier une console et l’enregistrer.</translation>
    </message>
    <message>
        <source>Log on as this user.</source>
        <translation>S’identifier comme cet utilisateur.</translation>
    </message>
    <message>
        <source>Call it so; the address at first.</source>
        <translation>La nommer ainsi&#xa0;; l’adresse par défaut.</translation>
    </message>
    <message>
        <source>Remove a console and what is remembered of it.</source>
        <translation>Retirer une console et ce qui en est connu.</translation>
    </message>
    <message>
        <source>Verify the consoles of a fleet sheet and register them together; - reads standard input.</source>
        <translation>Vérifier les consoles d’une feuille et les enregistrer ensemble&#xa0;; - lit l’entrée standard.</translation>
    </message>
    <message>
        <source>Register none unless all can be.</source>
        <translation>N’en enregistrer aucune si toutes ne le peuvent pas.</translation>
    </message>
    <message>
        <source>Write the consoles as a fleet sheet, without secrets; - writes standard output.</source>
        <translation>Écrire les consoles en feuille, sans secrets&#xa0;; - écrit sur la sortie standard.</translation>
    </message>
    <message>
        <source>The same as consoles list.</source>
        <translation>Comme consoles list.</translation>
    </message>
    <message>
        <source>%1 did not answer: %2.</source>
        <extracomment>%1 a console, %2 why, as in &quot;connection refused&quot;</extracomment>
        <translation>%1 n’a pas répondu&#xa0;: %2.</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>hors ligne</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <extracomment>%1 a console, %2 as in &quot;Partitions not read&quot;</extracomment>
        <translation>%1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>No consoles yet.</source>
        <translation>Aucune console pour l’instant.</translation>
    </message>
    <message>
        <source>Several consoles are called %1. Name one by its address.</source>
        <translation>Plusieurs consoles s’appellent %1. Nommez-en une par son adresse.</translation>
    </message>
    <message>
        <source>%1 was removed.</source>
        <translation>%1 a été retirée.</translation>
    </message>
    <message>
        <source>consoles export writes a fleet sheet; consoles list --json writes JSON.</source>
        <translation>consoles export écrit une feuille&#xa0;; consoles list --json écrit du JSON.</translation>
    </message>
    <message>
        <source>Could not be saved: %1</source>
        <translation>Enregistrement impossible&#xa0;: %1</translation>
    </message>
    <message numerus="yes">
        <source>Saved %Ln consoles as %1</source>
        <extracomment>%1 the name of a file</extracomment>
        <translation>
            <numerusform>%Ln console enregistrée dans %1</numerusform>
            <numerusform>%Ln consoles enregistrées dans %1</numerusform>
        </translation>
    </message>
    <message>
        <source>export takes either --openmetrics FILE or --listen PORT.</source>
        <translation>export demande soit --openmetrics FICHIER, soit --listen PORT.</translation>
    </message>
    <message>
        <source>--every goes with --listen; a file is written once.</source>
        <translation>--every va avec --listen&#xa0;; un fichier est écrit une fois.</translation>
    </message>
    <message>
        <source>export writes OpenMetrics.</source>
        <translation>export écrit de l’OpenMetrics.</translation>
    </message>
    <message numerus="yes">
        <source>export takes --system at most %Ln times.</source>
        <translation>
            <numerusform>export prend --system au plus %Ln fois.</numerusform>
            <numerusform>export prend --system au plus %Ln fois.</numerusform>
        </translation>
    </message>
    <message>
        <source>The metrics of %1 cannot be had: %2.</source>
        <extracomment>%1 a system, %2 why, as in &quot;connection refused&quot;</extracomment>
        <translation>Les mesures de %1 ne peuvent pas être lues&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Listening on %1</source>
        <translation>À l’écoute sur %1</translation>
    </message>
    <message>
        <source>%1 is no file that could be replaced.</source>
        <translation>%1 n’est pas un fichier qui puisse être remplacé.</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1 ne peut pas être écrit</translation>
    </message>
    <message>
        <source>reading %1 of %2</source>
        <extracomment>numbers of consoles</extracomment>
        <translation>lecture de %1 sur %2</translation>
    </message>
    <message>
        <source>%1 was left out: its certificate changed within an attempt. To take the new one, name the console with --console.</source>
        <translation>%1 a été laissée de côté&#xa0;: son certificat a changé pendant une tentative. Pour prendre le nouveau, nommez la console avec --console.</translation>
    </message>
    <message>
        <source>%1 cannot be opened</source>
        <translation>%1 ne peut pas être ouvert</translation>
    </message>
    <message>
        <source>%1 cannot be read</source>
        <translation>%1 ne peut pas être lu</translation>
    </message>
    <message>
        <source>This is not a CSV file: %1.</source>
        <translation>Ce n’est pas un fichier CSV&#xa0;: %1.</translation>
    </message>
    <message>
        <source>registered already, left alone</source>
        <translation>déjà enregistrée, inchangée</translation>
    </message>
    <message>
        <source>no address</source>
        <translation>sans adresse</translation>
    </message>
    <message>
        <source>no user</source>
        <translation>sans utilisateur</translation>
    </message>
    <message>
        <source>no address of a console: %1</source>
        <translation>pas une adresse de console&#xa0;: %1</translation>
    </message>
    <message>
        <source>the same address as row %1</source>
        <translation>même adresse que la ligne %1</translation>
    </message>
    <message>
        <source>Password of %1</source>
        <translation>Mot de passe de %1</translation>
    </message>
    <message numerus="yes">
        <source>verifying %1 of %2, about %Ln s left</source>
        <translation>
            <numerusform>vérification de %1 sur %2, encore environ %Ln&#xa0;s</numerusform>
            <numerusform>vérification de %1 sur %2, encore environ %Ln&#xa0;s</numerusform>
        </translation>
    </message>
    <message>
        <source>verifying %1 of %2</source>
        <translation>vérification de %1 sur %2</translation>
    </message>
    <message>
        <source>Nothing was added.</source>
        <translation>Rien n’a été ajouté.</translation>
    </message>
    <message>
        <source>The column %1 was not read: passwords do not belong in a sheet.</source>
        <translation>La colonne %1 n’a pas été lue&#xa0;: les mots de passe n’ont pas leur place dans une feuille.</translation>
    </message>
    <message>
        <source>The column %1 is not used.</source>
        <translation>La colonne %1 n’est pas utilisée.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln consoles were added.</source>
        <translation>
            <numerusform>%Ln console a été ajoutée.</numerusform>
            <numerusform>%Ln consoles ont été ajoutées.</numerusform>
        </translation>
    </message>
    <message>
        <source>Say as whom to log on with --user.</source>
        <translation>Dites avec --user qui s’identifie.</translation>
    </message>
    <message>
        <source>The address is empty.</source>
        <translation>L’adresse est vide.</translation>
    </message>
    <message>
        <source>Nothing was added: %1.</source>
        <translation>Rien n’a été ajouté&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Nothing was added. %1: %2.</source>
        <extracomment>%1 an address, %2 why, as in &quot;connection refused&quot;</extracomment>
        <translation>Rien n’a été ajouté. %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>not verified</source>
        <translation>non vérifiée</translation>
    </message>
    <message>
        <source>%1 was added.</source>
        <translation>%1 a été ajoutée.</translation>
    </message>
    <message>
        <source>%1 was added, %2.</source>
        <translation>%1 a été ajoutée, %2.</translation>
    </message>
    <message>
        <source>--listen takes a port, or an address and a port as 127.0.0.1:9750, not %1.</source>
        <translation>--listen demande un port, ou une adresse et un port comme 127.0.0.1:9750, pas %1.</translation>
    </message>
    <message>
        <source>--listen takes an address in numbers, not %1.</source>
        <translation>--listen demande une adresse en chiffres, pas %1.</translation>
    </message>
    <message>
        <source>--listen takes no address that other machines reach, such as %1: what it serves is neither encrypted nor guarded. Put a server in front of it that is.</source>
        <translation>--listen ne prend pas d’adresse que d’autres machines atteignent, comme %1&#xa0;: ce qu’il sert n’est ni chiffré ni protégé. Placez devant un serveur qui l’est.</translation>
    </message>
    <message>
        <source>Cannot listen on %1</source>
        <translation>Écoute impossible sur %1</translation>
    </message>
    <message>
        <source>lodestar-cli --help lists all commands.</source>
        <translation>lodestar-cli --help liste toutes les commandes.</translation>
    </message>
    <message>
        <source>total processors</source>
        <translation>processeurs, total</translation>
    </message>
    <message>
        <source>allocated processors</source>
        <translation>processeurs alloués</translation>
    </message>
    <message>
        <source>used processors</source>
        <translation>processeurs utilisés</translation>
    </message>
    <message>
        <source>total memory, GB</source>
        <translation>mémoire totale, Go</translation>
    </message>
    <message>
        <source>allocated memory, GB</source>
        <translation>mémoire allouée, Go</translation>
    </message>
    <message>
        <source>used memory, GB</source>
        <translation>mémoire utilisée, Go</translation>
    </message>
    <message>
        <source>No sample had values.</source>
        <translation>Aucun relevé n’avait de valeurs.</translation>
    </message>
    <message>
        <source>No %1.</source>
        <translation>Liste vide&#xa0;: %1.</translation>
    </message>
    <message>
        <source>No known %1.</source>
        <translation>Liste vide, sous réserve de ce qui n’a pas été lu&#xa0;: %1.</translation>
    </message>
    <message>
        <source>No open %1.</source>
        <translation>Pas d’%1 ouverts.</translation>
    </message>
    <message>
        <source>No known open %1.</source>
        <translation>Pas d’%1 ouverts connus.</translation>
    </message>
    <message>
        <source>No such %1.</source>
        <translation>Rien de tel&#xa0;: %1.</translation>
    </message>
    <message>
        <source>No known such %1.</source>
        <translation>Rien de tel, sous réserve de ce qui n’a pas été lu&#xa0;: %1.</translation>
    </message>
    <message>
        <source>--order takes sent, newest, status or code, not %1.</source>
        <translation>--order demande sent, newest, status ou code, pas %1.</translation>
    </message>
    <message>
        <source>Nothing of that kind is called %1.</source>
        <translation>Rien de ce type ne s’appelle %1.</translation>
    </message>
    <message>
        <source>There is no kind %1: consoles, systems, io-servers, partitions, events or groups.</source>
        <extracomment>The kinds are words of the command, which stay as they are</extracomment>
        <translation>Il n’y a pas de type %1&#xa0;: consoles, systems, io-servers, partitions, events ou groups.</translation>
    </message>
    <message>
        <source>The output cannot be written</source>
        <translation>La sortie ne peut pas être écrite</translation>
    </message>
    <message>
        <source>The password cannot be read</source>
        <translation>Le mot de passe ne peut pas être lu</translation>
    </message>
    <message>
        <source>There is no password.</source>
        <translation>Il n’y a pas de mot de passe.</translation>
    </message>
    <message>
        <source>There is no terminal to ask for the password. Give --password-fd N to read it from descriptor N.</source>
        <translation>Il n’y a pas de terminal pour demander le mot de passe. Donnez --password-fd N pour le lire du descripteur N.</translation>
    </message>
    <message>
        <source>Lodestar is open, or another command is at work, in %1. Close it, or name another folder with --data.</source>
        <translation>Lodestar est ouvert, ou une autre commande travaille, dans %1. Fermez-le, ou nommez un autre dossier avec --data.</translation>
    </message>
    <message>
        <source>Lodestar keeps nothing in a folder of another user: %1</source>
        <translation>Lodestar ne garde rien dans le dossier d’un autre utilisateur&#xa0;: %1</translation>
    </message>
    <message>
        <source>Lodestar cannot lock its folder: Lodestar.lock in %1 is no file of yours.</source>
        <translation>Lodestar ne peut pas verrouiller son dossier&#xa0;: Lodestar.lock dans %1 n’est pas un fichier à vous.</translation>
    </message>
    <message>
        <source>The disk can only be read.</source>
        <translation>Le disque ne peut qu’être lu.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>Le disque est plein.</translation>
    </message>
    <message>
        <source>There is no home folder. Name a data folder with --data.</source>
        <translation>Il n’y a pas de dossier personnel. Nommez un dossier de données avec --data.</translation>
    </message>
    <message>
        <source>There is no data folder. %1</source>
        <translation>Il n’y a pas de dossier de données. %1</translation>
    </message>
    <message>
        <source>A reset of Lodestar was cut short. Open Lodestar once to finish it.</source>
        <translation>Une réinitialisation de Lodestar a été interrompue. Ouvrez Lodestar une fois pour la finir.</translation>
    </message>
    <message>
        <source>The consoles in %1 cannot be read. %2</source>
        <extracomment>%1 a folder, %2 a sentence that tells why</extracomment>
        <translation>Les consoles dans %1 ne peuvent pas être lues. %2</translation>
    </message>
    <message>
        <source>No console is called %1.</source>
        <translation>Aucune console ne s’appelle %1.</translation>
    </message>
    <message>
        <source>The history was damaged. It was set aside as %1, and a new one was begun. Earlier changes are missing.</source>
        <translation>L’historique était endommagé. Il a été mis de côté sous %1 et un nouveau commencé. Les changements précédents manquent.</translation>
    </message>
    <message>
        <source>Nothing was stored. %1</source>
        <translation>Rien n’a été enregistré. %1</translation>
    </message>
    <message>
        <source>No consoles yet. Add one with: %1</source>
        <translation>Aucune console pour l’instant. Ajoutez-en une avec&#xa0;: %1</translation>
    </message>
    <message>
        <source>left out, its certificate changed</source>
        <translation>laissée de côté, son certificat a changé</translation>
    </message>
    <message>
        <source>offline since %1</source>
        <translation>hors ligne depuis %1</translation>
    </message>
    <message>
        <source>Several systems are called %1. Name one by its identifier, or its console with --console.</source>
        <translation>Plusieurs systèmes s’appellent %1. Nommez-en un par son identifiant, ou sa console avec --console.</translation>
    </message>
    <message>
        <source>No system is called %1.</source>
        <translation>Aucun système ne s’appelle %1.</translation>
    </message>
    <message>
        <source>--times takes a number from 1 on.</source>
        <translation>--times demande un nombre à partir de 1.</translation>
    </message>
    <message>
        <source>watch writes lines of text, or of JSON with --json.</source>
        <translation>watch écrit des lignes de texte, ou de JSON avec --json.</translation>
    </message>
    <message>
        <source>There are no consoles to watch.</source>
        <translation>Il n’y a pas de consoles à surveiller.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1 %2 %3</source>
        <extracomment>%1 the day of a month, %2 the short name of the month, %3 a year</extracomment>
        <translation>%1 %2 %3</translation>
    </message>
    <message>
        <source>Row %1: %2.</source>
        <extracomment>%1 the number of a sheet&apos;s row, %2 what is wrong with it</extracomment>
        <translation>Ligne %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The password is too long.</source>
        <translation>Le mot de passe est trop long.</translation>
    </message>
</context>
<context>
    <name>ConnectionCard</name>
    <message>
        <source>Refresh This Console</source>
        <translation>Actualiser cette console</translation>
    </message>
    <message>
        <source>updating...</source>
        <translation>lecture...</translation>
    </message>
</context>
<context>
    <name>ConnectionScene</name>
    <message>
        <source>Copy all</source>
        <translation>Tout copier</translation>
    </message>
</context>
<context>
    <name>CorvelListDelegate</name>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>Attention</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Événements</translation>
    </message>
</context>
<context>
    <name>CorvelListScene</name>
    <message>
        <source>Feedback</source>
        <translation>Commentaires</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Add console</source>
        <translation>Ajouter une console</translation>
    </message>
    <message>
        <source>Fleet Sheet</source>
        <translation>Feuille de consoles</translation>
    </message>
    <message>
        <source>No console of your own yet.</source>
        <translation>Aucune console à vous pour l’instant.</translation>
    </message>
</context>
<context>
    <name>DashboardScene</name>
    <message>
        <source>Corvel Overview</source>
        <translation>Vue d’ensemble</translation>
    </message>
    <message>
        <source>Corvels Online</source>
        <translation>Corvels en ligne</translation>
    </message>
    <message>
        <source>Attention LEDs</source>
        <translation>LED d’attention</translation>
    </message>
    <message>
        <source>Serviceable Events</source>
        <translation>Événements de service</translation>
    </message>
    <message>
        <source>Managed Systems</source>
        <translation>Systèmes gérés</translation>
    </message>
    <message>
        <source>No managed systems are known.</source>
        <translation>Aucun système géré n’est connu.</translation>
    </message>
    <message>
        <source>Logical Partitions</source>
        <translation>Partitions logiques</translation>
    </message>
    <message>
        <source>No logical partitions are known.</source>
        <translation>Aucune partition logique n’est connue.</translation>
    </message>
    <message>
        <source>No consoles yet.</source>
        <translation>Aucune console pour l’instant.</translation>
    </message>
    <message>
        <source>Add Corvel</source>
        <translation>Ajouter un Corvel</translation>
    </message>
</context>
<context>
    <name>DeltaCorvelScene</name>
    <message>
        <source>Leave out &quot;%1&quot;.</source>
        <translation>Retirez «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Leave out &quot;/&quot; and what follows it.</source>
        <translation>Retirez «&#xa0;/&#xa0;» et ce qui suit.</translation>
    </message>
    <message>
        <source>The address contains a blank.</source>
        <translation>L’adresse contient un espace.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Host name or address</source>
        <translation>Nom d’hôte ou adresse</translation>
    </message>
    <message>
        <source>User ID</source>
        <translation>Utilisateur</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
</context>
<context>
    <name>DetailScene</name>
    <message>
        <source>Service report</source>
        <translation>Rapport de service</translation>
    </message>
</context>
<context>
    <name>EditMenuChoices</name>
    <message>
        <source>Edit text</source>
        <translation>Modifier le texte</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Couper</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
</context>
<context>
    <name>EmptyColumn</name>
    <message>
        <source>Choose what to look at.</source>
        <translation>Choisissez ce que vous voulez voir.</translation>
    </message>
</context>
<context>
    <name>ErrorWords</name>
    <message>
        <source>this is the name of a folder.</source>
        <translation>c’est le nom d’un dossier.</translation>
    </message>
    <message>
        <source>this is the name of a device.</source>
        <translation>c’est le nom d’un périphérique.</translation>
    </message>
    <message>
        <source>the folder does not exist.</source>
        <translation>le dossier n’existe pas.</translation>
    </message>
    <message>
        <source>the disk is full.</source>
        <translation>le disque est plein.</translation>
    </message>
    <message>
        <source>you may not write there.</source>
        <translation>vous ne pouvez pas écrire là.</translation>
    </message>
    <message>
        <source>the file is too large for the disk.</source>
        <translation>le fichier est trop volumineux pour le disque.</translation>
    </message>
    <message>
        <source>the name is too long.</source>
        <translation>le nom est trop long.</translation>
    </message>
    <message>
        <source>this place is not on this device.</source>
        <translation>cet endroit n’est pas sur cet appareil.</translation>
    </message>
    <message>
        <source>this system shows no dialogue for files.</source>
        <translation>ce système n’a pas de sélecteur de fichiers.</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>Ce fichier n’existe pas.</translation>
    </message>
    <message>
        <source>This is not a file.</source>
        <translation>Ce n’est pas un fichier.</translation>
    </message>
    <message>
        <source>This file cannot be read.</source>
        <translation>Ce fichier ne peut pas être lu.</translation>
    </message>
    <message>
        <source>This file is too large.</source>
        <translation>Ce fichier est trop volumineux.</translation>
    </message>
    <message>
        <source>This system shows no dialogue for files.</source>
        <translation>Ce système n’a pas de sélecteur de fichiers.</translation>
    </message>
    <message>
        <source>The request was cancelled.</source>
        <translation>La demande a été annulée.</translation>
    </message>
    <message>
        <source>The address is not valid.</source>
        <translation>L’adresse n’est pas valide.</translation>
    </message>
    <message>
        <source>No answer came in time. Check the network.</source>
        <translation>Aucune réponse à temps. Vérifiez le réseau.</translation>
    </message>
    <message>
        <source>The name has no address. Check the spelling.</source>
        <translation>Ce nom n’a pas d’adresse. Vérifiez l’orthographe.</translation>
    </message>
    <message>
        <source>This address cannot be reached.</source>
        <translation>Cette adresse ne peut pas être atteinte.</translation>
    </message>
    <message>
        <source>The connection broke off. Try again.</source>
        <translation>La connexion s’est coupée. Réessayez.</translation>
    </message>
    <message>
        <source>The answer was not understood.</source>
        <translation>La réponse n’a pas été comprise.</translation>
    </message>
    <message>
        <source>The answer is larger than Lodestar takes.</source>
        <translation>La réponse dépasse ce que Lodestar accepte.</translation>
    </message>
    <message>
        <source>No secure connection can be made.</source>
        <translation>Aucune connexion sécurisée n’est possible.</translation>
    </message>
    <message>
        <source>The certificate is not trusted.</source>
        <translation>Le certificat n’est pas reconnu.</translation>
    </message>
    <message>
        <source>The request failed.</source>
        <translation>La demande a échoué.</translation>
    </message>
    <message>
        <source>The console did not accept user or password.</source>
        <translation>La console a refusé l’utilisateur ou le mot de passe.</translation>
    </message>
    <message>
        <source>The console has an error. Try again.</source>
        <translation>La console est en erreur. Réessayez.</translation>
    </message>
    <message>
        <source>The address does not answer as a console.</source>
        <translation>Aucune console ne répond à cette adresse.</translation>
    </message>
</context>
<context>
    <name>EventBars</name>
    <message>
        <source>New Events a Day</source>
        <translation>Nouveaux événements par jour</translation>
    </message>
    <message numerus="yes">
        <source>%Ln days</source>
        <translation>
            <numerusform>%Ln jour</numerusform>
            <numerusform>%Ln jours</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>EventOrderScene</name>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouverts</translation>
    </message>
    <message>
        <source>Call home</source>
        <translation>Appel au fabricant</translation>
    </message>
</context>
<context>
    <name>FeedListScene</name>
    <message>
        <source>Search results</source>
        <translation>Résultats</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>Rien trouvé.</translation>
    </message>
</context>
<context>
    <name>FeedListViewController</name>
    <message>
        <source>Logical Partitions</source>
        <translation>Partitions logiques</translation>
    </message>
    <message>
        <source>Partitions could not be loaded. Refresh to try again.</source>
        <translation>Les partitions n’ont pas pu être chargées. Actualisez pour réessayer.</translation>
    </message>
    <message>
        <source>There are no partitions here.</source>
        <translation>Il n’y a pas de partitions ici.</translation>
    </message>
    <message>
        <source>Managed Systems</source>
        <translation>Systèmes gérés</translation>
    </message>
    <message>
        <source>Managed systems could not be loaded. Refresh to try again.</source>
        <translation>Les systèmes gérés n’ont pas pu être chargés. Actualisez pour réessayer.</translation>
    </message>
    <message>
        <source>This console manages no systems.</source>
        <translation>Cette console ne gère aucun système.</translation>
    </message>
    <message>
        <source>Resource Groups</source>
        <translation>Groupes de ressources</translation>
    </message>
    <message>
        <source>Resource groups could not be loaded. Refresh to try again.</source>
        <translation>Les groupes de ressources n’ont pas pu être chargés. Actualisez pour réessayer.</translation>
    </message>
    <message>
        <source>This console has no resource groups.</source>
        <translation>Cette console n’a pas de groupes de ressources.</translation>
    </message>
    <message>
        <source>Serviceable Events</source>
        <translation>Événements de service</translation>
    </message>
    <message>
        <source>Serviceable events could not be loaded. Refresh to try again.</source>
        <translation>Les événements de service n’ont pas pu être chargés. Actualisez pour réessayer.</translation>
    </message>
    <message>
        <source>This console has no serviceable events.</source>
        <translation>Cette console n’a pas d’événements de service.</translation>
    </message>
    <message>
        <source>Virtual IO Servers</source>
        <translation>Serveurs E/S virtuels</translation>
    </message>
    <message>
        <source>Virtual servers could not be loaded. Refresh to try again.</source>
        <translation>Les serveurs virtuels n’ont pas pu être chargés. Actualisez pour réessayer.</translation>
    </message>
    <message>
        <source>Nothing in sight</source>
        <translation>Rien en vue</translation>
    </message>
    <message>
        <source>There are no virtual servers here.</source>
        <translation>Il n’y a pas de serveurs virtuels ici.</translation>
    </message>
</context>
<context>
    <name>FeedbackLayer</name>
    <message>
        <source>Feedback</source>
        <translation>Commentaires</translation>
    </message>
</context>
<context>
    <name>FeedbackScene</name>
    <message>
        <source>Red</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Jaune</translation>
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
        <source>Black</source>
        <translation>Noir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Envoyer</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Picture of the screen, to draw on</source>
        <translation>Image de l’écran, à dessiner</translation>
    </message>
    <message>
        <source>Pen</source>
        <translation>Crayon</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Masquer</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Défaire</translation>
    </message>
    <message>
        <source>What happened?</source>
        <translation>Que s’est-il passé&#xa0;?</translation>
    </message>
    <message>
        <source>Addresses are covered before the picture is shown. Passwords are never part of it.</source>
        <translation>Les adresses sont masquées avant que l’image soit montrée. Les mots de passe n’y sont jamais.</translation>
    </message>
    <message>
        <source>Addresses are covered before the picture is shown. Passwords are never part of it. The report stays on this device.</source>
        <translation>Les adresses sont masquées avant que l’image soit montrée. Les mots de passe n’y sont jamais. Le rapport reste sur cet appareil.</translation>
    </message>
    <message>
        <source>What is sent</source>
        <translation>Ce qui est envoyé</translation>
    </message>
    <message>
        <source>What is saved</source>
        <translation>Ce qui est enregistré</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Rapports</translation>
    </message>
</context>
<context>
    <name>FilePicker</name>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>FindButton</name>
    <message>
        <source>Find anywhere</source>
        <translation>Rechercher partout</translation>
    </message>
</context>
<context>
    <name>FindScene</name>
    <message>
        <source>Find on all consoles</source>
        <translation>Rechercher partout</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
</context>
<context>
    <name>FirstRun</name>
    <message>
        <source>No consoles yet.</source>
        <translation>Aucune console pour l’instant.</translation>
    </message>
    <message>
        <source>Look at the Demo First</source>
        <translation>Voir d’abord la démo</translation>
    </message>
</context>
<context>
    <name>FirstSteps</name>
    <message>
        <source>Give the address, user and password of one. Lodestar only reads; nothing on a console is ever changed.</source>
        <translation>Indiquez l’adresse, l’utilisateur et le mot de passe d’une console. Lodestar ne fait que lire&#xa0;; rien n’y est jamais modifié.</translation>
    </message>
    <message>
        <source>Add Corvel</source>
        <translation>Ajouter un Corvel</translation>
    </message>
    <message>
        <source>Import Fleet Sheet</source>
        <translation>Importer une feuille</translation>
    </message>
</context>
<context>
    <name>FleetAgainScene</name>
    <message>
        <source>Verify</source>
        <translation>Vérifier</translation>
    </message>
    <message>
        <source>A field that stays empty keeps its password.</source>
        <translation>Un champ vide garde son mot de passe.</translation>
    </message>
</context>
<context>
    <name>FleetChooseScene</name>
    <message>
        <source>In this sheet</source>
        <translation>Dans cette feuille</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouvelles</translation>
    </message>
    <message>
        <source>Registered already, left alone</source>
        <translation>Déjà enregistrées, inchangées</translation>
    </message>
    <message>
        <source>Cannot be used</source>
        <translation>Inutilisables</translation>
    </message>
    <message>
        <source>Passwords, one a user</source>
        <translation>Mots de passe</translation>
    </message>
    <message>
        <source>Passwords are never read from a sheet nor written to one.</source>
        <translation>Les mots de passe ne sont jamais lus dans une feuille ni écrits dedans.</translation>
    </message>
    <message>
        <source>Nothing is added before all of them were tried.</source>
        <translation>Rien n’est ajouté avant que toutes aient été essayées.</translation>
    </message>
</context>
<context>
    <name>FleetEventsBar</name>
    <message>
        <source>Order</source>
        <translation>Tri</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
</context>
<context>
    <name>FleetEventsContent</name>
    <message>
        <source>Search results</source>
        <translation>Résultats</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>Rien trouvé.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
</context>
<context>
    <name>FleetEventsHeader</name>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
</context>
<context>
    <name>FleetPasswordCard</name>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Show More Users</source>
        <translation>Afficher d’autres utilisateurs</translation>
    </message>
</context>
<context>
    <name>FleetSheetScene</name>
    <message>
        <source>Import Consoles from a Sheet</source>
        <translation>Importer des consoles d’une feuille</translation>
    </message>
    <message>
        <source>A sheet is a CSV file with a first line, for example:</source>
        <translation>Une feuille est un fichier CSV avec une ligne de titres, par exemple&#xa0;:</translation>
    </message>
    <message>
        <source>Passwords are asked once a user. They are never read from a sheet nor written to one.</source>
        <translation>Les mots de passe sont demandés une fois par utilisateur. Ils ne sont jamais lus dans une feuille ni écrits dedans.</translation>
    </message>
    <message>
        <source>Look at the Demo</source>
        <translation>Voir la démo</translation>
    </message>
    <message>
        <source>A console that is part of Lodestar. It needs no network.</source>
        <translation>Une console fournie avec Lodestar. Elle n’a pas besoin de réseau.</translation>
    </message>
</context>
<context>
    <name>FleetVerifyHeader</name>
    <message>
        <source>Verified</source>
        <translation>Vérifiées</translation>
    </message>
    <message>
        <source>Not verified</source>
        <translation>Non vérifiées</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>en attente</translation>
    </message>
</context>
<context>
    <name>FleetVerifyScene</name>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>FoldedListScene</name>
    <message>
        <source>Nothing left to show</source>
        <translation>Plus rien à afficher</translation>
    </message>
</context>
<context>
    <name>IntroView</name>
    <message>
        <source>Every console, one list</source>
        <translation>Toutes les consoles, une liste</translation>
    </message>
    <message>
        <source>Health, attention LEDs and events of your whole fleet, refreshed with one pull.</source>
        <translation>Santé, LED d’attention et événements de toutes vos consoles, actualisés d’un geste.</translation>
    </message>
    <message>
        <source>The sum of it all</source>
        <translation>L’ensemble en chiffres</translation>
    </message>
    <message>
        <source>The dashboard adds up managed systems and partitions by their state.</source>
        <translation>Le tableau de bord compte systèmes gérés et partitions par état.</translation>
    </message>
    <message>
        <source>Every managed system</source>
        <translation>Chaque système géré</translation>
    </message>
    <message>
        <source>Find a system by name. Badges tell errors and lit attention LEDs.</source>
        <translation>Trouvez un système par son nom. Les badges signalent erreurs et LED d’attention allumées.</translation>
    </message>
    <message>
        <source>Down to the partition</source>
        <translation>Jusqu’à la partition</translation>
    </message>
    <message>
        <source>Partitions and virtual I/O servers stand under the system that runs them.</source>
        <translation>Partitions et serveurs E/S virtuels figurent sous le système qui les porte.</translation>
    </message>
    <message>
        <source>Load over time</source>
        <translation>La charge dans le temps</translation>
    </message>
    <message>
        <source>Processors and memory of a system, total, allocated and used, as lines.</source>
        <translation>Processeurs et mémoire d’un système, total, alloué et utilisé, en courbes.</translation>
    </message>
    <message>
        <source>Behind a passcode</source>
        <translation>Protégé par un code</translation>
    </message>
    <message>
        <source>Lock Lodestar if you like. It reads only and changes nothing on a console.</source>
        <translation>Verrouillez Lodestar si vous voulez. Il ne fait que lire et ne change rien sur une console.</translation>
    </message>
</context>
<context>
    <name>KeySheetScene</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Find a command</source>
        <translation>Rechercher une commande</translation>
    </message>
</context>
<context>
    <name>KeyTable</name>
    <message>
        <source>Refresh</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Save list as CSV</source>
        <translation>Enregistrer la liste en CSV</translation>
    </message>
    <message>
        <source>Save points as CSV</source>
        <translation>Enregistrer les points en CSV</translation>
    </message>
    <message>
        <source>Copy value</source>
        <translation>Copier la valeur</translation>
    </message>
    <message>
        <source>Copy all</source>
        <translation>Tout copier</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Défaire</translation>
    </message>
    <message>
        <source>Keyboard help</source>
        <translation>Aide clavier</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Commandes</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Next or previous control</source>
        <translation>Élément suivant ou précédent</translation>
    </message>
    <message>
        <source>Next or previous row</source>
        <translation>Ligne suivante ou précédente</translation>
    </message>
    <message>
        <source>A page up or down</source>
        <translation>Une page vers le haut ou le bas</translation>
    </message>
    <message>
        <source>First or last row</source>
        <translation>Première ou dernière ligne</translation>
    </message>
    <message>
        <source>Open the row</source>
        <translation>Ouvrir la ligne</translation>
    </message>
    <message>
        <source>Menu of the row</source>
        <translation>Menu de la ligne</translation>
    </message>
    <message>
        <source>Buttons of the row</source>
        <translation>Boutons de la ligne</translation>
    </message>
    <message>
        <source>Step along the chart</source>
        <translation>Avancer dans le graphique</translation>
    </message>
    <message>
        <source>Enlarge or shrink</source>
        <translation>Agrandir ou réduire</translation>
    </message>
    <message>
        <source>The whole chart</source>
        <translation>Tout le graphique</translation>
    </message>
    <message>
        <source>Add console</source>
        <translation>Ajouter une console</translation>
    </message>
    <message>
        <source>Find anywhere</source>
        <translation>Rechercher partout</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Feedback</source>
        <translation>Commentaires</translation>
    </message>
    <message>
        <source>Corvels</source>
        <translation>Corvels</translation>
    </message>
    <message>
        <source>Dashboard</source>
        <translation>Tableau de bord</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>Attention</translation>
    </message>
    <message>
        <source>The other column</source>
        <translation>L’autre colonne</translation>
    </message>
    <message>
        <source>First or last value</source>
        <translation>Première ou dernière valeur</translation>
    </message>
    <message>
        <source>Move the enlarged chart</source>
        <translation>Déplacer le graphique agrandi</translation>
    </message>
</context>
<context>
    <name>KeychainWait</name>
    <message>
        <source>Waiting for the system&apos;s keychain...</source>
        <translation>Attente du trousseau du système...</translation>
    </message>
</context>
<context>
    <name>LargeChartScene</name>
    <message>
        <source>Performance Monitoring</source>
        <translation>Performances</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Partager</translation>
    </message>
    <message>
        <source>Processors</source>
        <translation>Processeurs</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Mémoire</translation>
    </message>
    <message>
        <source>Metrics</source>
        <translation>Mesures</translation>
    </message>
    <message>
        <source>Bars</source>
        <translation>Barres</translation>
    </message>
    <message>
        <source>Allocated as bars</source>
        <translation>Alloué en barres</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Tout afficher</translation>
    </message>
</context>
<context>
    <name>ListShareButton</name>
    <message>
        <source>Save list as CSV</source>
        <translation>Enregistrer la liste en CSV</translation>
    </message>
</context>
<context>
    <name>LoginScene</name>
    <message>
        <source>Lodestar</source>
        <translation>Lodestar</translation>
    </message>
    <message>
        <source>Log In</source>
        <translation>Se connecter</translation>
    </message>
    <message>
        <source>Reset Passcode and Erase All Data</source>
        <translation>Réinitialiser le code et tout effacer</translation>
    </message>
</context>
<context>
    <name>MCScene</name>
    <message>
        <source>This console has told nothing of itself.</source>
        <translation>Cette console n’a rien dit d’elle-même.</translation>
    </message>
</context>
<context>
    <name>MainStoryboard</name>
    <message>
        <source>Corvels</source>
        <translation>Corvels</translation>
    </message>
    <message>
        <source>Dashboard</source>
        <translation>Tableau de bord</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>Attention</translation>
    </message>
</context>
<context>
    <name>NavigationBar</name>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
</context>
<context>
    <name>PCMScene</name>
    <message>
        <source>units</source>
        <translation>unités</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>Go</translation>
    </message>
    <message>
        <source>Performance Monitoring</source>
        <translation>Performances</translation>
    </message>
    <message>
        <source>Large Chart</source>
        <translation>Grand graphique</translation>
    </message>
    <message>
        <source>Processors</source>
        <translation>Processeurs</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Mémoire</translation>
    </message>
    <message>
        <source>Metrics</source>
        <translation>Mesures</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Allocated</source>
        <translation>Alloué</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Utilisé</translation>
    </message>
</context>
<context>
    <name>PageControl</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
</context>
<context>
    <name>PagedIntroView</name>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Passer</translation>
    </message>
</context>
<context>
    <name>Passcode</name>
    <message>
        <source>The system&apos;s keychain is locked</source>
        <translation>Le trousseau du système est verrouillé</translation>
    </message>
    <message>
        <source>No keychain is running on this system</source>
        <translation>Aucun trousseau ne tourne sur ce système</translation>
    </message>
    <message>
        <source>The system&apos;s keychain does not answer</source>
        <translation>Le trousseau du système ne répond pas</translation>
    </message>
    <message>
        <source>The system&apos;s keychain cannot keep this text</source>
        <translation>Le trousseau du système ne peut pas garder ce texte</translation>
    </message>
    <message>
        <source>The system&apos;s keychain reported an error</source>
        <translation>Le trousseau du système a signalé une erreur</translation>
    </message>
    <message>
        <source>The passcode is not asked for any more: the system&apos;s keychain was locked.</source>
        <translation>Le code n’est plus demandé&#xa0;: le trousseau du système était verrouillé.</translation>
    </message>
    <message>
        <source>The passcode is not asked for any more: no keychain was running.</source>
        <translation>Le code n’est plus demandé&#xa0;: aucun trousseau ne tournait.</translation>
    </message>
    <message>
        <source>The passcode is not asked for any more: the system&apos;s keychain did not answer.</source>
        <translation>Le code n’est plus demandé&#xa0;: le trousseau du système n’a pas répondu.</translation>
    </message>
    <message>
        <source>The passcode is not asked for any more: the system&apos;s keychain could not be read.</source>
        <translation>Le code n’est plus demandé&#xa0;: le trousseau du système n’a pas pu être lu.</translation>
    </message>
</context>
<context>
    <name>PasswordCreationScene</name>
    <message>
        <source>Old passcode</source>
        <translation>Ancien code</translation>
    </message>
    <message>
        <source>New passcode</source>
        <translation>Nouveau code</translation>
    </message>
    <message>
        <source>Verify passcode</source>
        <translation>Confirmer le code</translation>
    </message>
</context>
<context>
    <name>PerformanceSummary</name>
    <message>
        <source>Lowest</source>
        <translation>Min.</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Moy.</translation>
    </message>
    <message>
        <source>Highest</source>
        <translation>Max.</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>Dernier</translation>
    </message>
</context>
<context>
    <name>PrivacyCoverScene</name>
    <message>
        <source>Lodestar</source>
        <translation>Lodestar</translation>
    </message>
</context>
<context>
    <name>PullIndicatorMark</name>
    <message>
        <source>Refreshing</source>
        <translation>Actualisation</translation>
    </message>
    <message>
        <source>Pull to refresh</source>
        <translation>Tirer pour actualiser</translation>
    </message>
</context>
<context>
    <name>PullSearchField</name>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
</context>
<context>
    <name>RGListDelegate</name>
    <message>
        <source>updating...</source>
        <translation>lecture...</translation>
    </message>
</context>
<context>
    <name>ReportListScene</name>
    <message>
        <source>No reports on this device.</source>
        <translation>Aucun rapport sur cet appareil.</translation>
    </message>
</context>
<context>
    <name>ReportScene</name>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Picture of the screen</source>
        <translation>Image de l’écran</translation>
    </message>
</context>
<context>
    <name>Reports</name>
    <message>
        <source>Sending the report...</source>
        <translation>Envoi du rapport...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Waiting for the answer...</source>
        <translation>Attente de la réponse...</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Report Sent</source>
        <translation>Rapport envoyé</translation>
    </message>
    <message>
        <source>Thank you. A copy is in the list of reports.</source>
        <translation>Merci. Une copie est dans la liste des rapports.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The report could not be sent</source>
        <translation>Le rapport n’a pas pu être envoyé</translation>
    </message>
    <message>
        <source>%1
It is kept in the list of reports.</source>
        <translation>%1
Il reste dans la liste des rapports.</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Crash</source>
        <translation>Plantage</translation>
    </message>
    <message>
        <source>Feedback</source>
        <translation>Commentaires</translation>
    </message>
</context>
<context>
    <name>SearchBar</name>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
</context>
<context>
    <name>SecretSwitch</name>
    <message>
        <source>Hide password</source>
        <translation>Cacher le mot de passe</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>Montrer le mot de passe</translation>
    </message>
</context>
<context>
    <name>ServiceReportScene</name>
    <message>
        <source>Form of the report</source>
        <translation>Forme du rapport</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Markdown</source>
        <translation>Markdown</translation>
    </message>
    <message>
        <source>Leave Out Addresses</source>
        <translation>Sans les adresses</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Save as File</source>
        <translation>Enregistrer</translation>
    </message>
</context>
<context>
    <name>SettingsScene</name>
    <message>
        <source>Require Passcode</source>
        <translation>Exiger un code</translation>
    </message>
    <message>
        <source>Change Passcode</source>
        <translation>Changer le code</translation>
    </message>
    <message>
        <source>Intro Tour</source>
        <translation>Visite guidée</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Open Source Licenses</source>
        <translation>Licences open source</translation>
    </message>
    <message>
        <source>Ornis License</source>
        <translation>Licence Ornis</translation>
    </message>
</context>
<context>
    <name>SheetContent</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
</context>
<context>
    <name>Spinner</name>
    <message>
        <source>Loading</source>
        <translation>Chargement</translation>
    </message>
</context>
<context>
    <name>StateBars</name>
    <message>
        <source>Partitions by State</source>
        <translation>Partitions par état</translation>
    </message>
    <message>
        <source>and since yesterday</source>
        <translation>et depuis hier</translation>
    </message>
</context>
<context>
    <name>SwipeButtons</name>
    <message>
        <source>Actions</source>
        <translation>Actions</translation>
    </message>
</context>
<context>
    <name>TabBar</name>
    <message>
        <source>Screens</source>
        <translation>Écrans</translation>
    </message>
</context>
<context>
    <name>WatchConsoleDelegate</name>
    <message>
        <source>watched</source>
        <translation>surveillée</translation>
    </message>
    <message>
        <source>not watched</source>
        <translation>non surveillée</translation>
    </message>
</context>
<context>
    <name>WatchScene</name>
    <message>
        <source>Watch While Lodestar Runs</source>
        <translation>Surveiller tant que Lodestar tourne</translation>
    </message>
    <message>
        <source>Reads every console again by itself and tells you what changed. It stops when Lodestar is closed.</source>
        <translation>Relit toutes les consoles de lui-même et dit ce qui a changé. S’arrête quand Lodestar est fermé.</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>Every</source>
        <translation>Intervalle</translation>
    </message>
    <message>
        <source>Tell me</source>
        <translation>Me prévenir</translation>
    </message>
    <message>
        <source>When Something Gets Worse</source>
        <translation>Quand quelque chose empire</translation>
    </message>
    <message>
        <source>When It Gets Better Again</source>
        <translation>Quand cela s’améliore</translation>
    </message>
    <message>
        <source>New Events</source>
        <translation>Nouveaux événements</translation>
    </message>
    <message>
        <source>Consoles</source>
        <translation>Consoles</translation>
    </message>
    <message>
        <source>Quiet Hours</source>
        <translation>Heures calmes</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>Until</source>
        <translation>À</translation>
    </message>
    <message>
        <source>Send a Test Message</source>
        <translation>Envoyer un message d’essai</translation>
    </message>
    <message>
        <source>At most one message a refresh. Names, addresses and texts stay out of it while a passcode is required.</source>
        <translation>Au plus un message par actualisation. Noms, adresses et textes n’y figurent pas tant qu’un code est exigé.</translation>
    </message>
</context>
<context>
    <name>WatchTimeRow</name>
    <message>
        <source>Left and right change the time.</source>
        <translation>Gauche et droite changent l’heure.</translation>
    </message>
    <message>
        <source>%1, earlier</source>
        <translation>%1, plus tôt</translation>
    </message>
    <message>
        <source>%1, later</source>
        <translation>%1, plus tard</translation>
    </message>
</context>
<context>
    <name>lodestar::AgeText</name>
    <message>
        <source>just now</source>
        <translation>à l’instant</translation>
    </message>
    <message>
        <source>yesterday</source>
        <translation>hier</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>%1 a day as in &quot;yesterday&quot; or &quot;Mon&quot;, %2 a time of day</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>today, %1</source>
        <extracomment>%1 a time of day</extracomment>
        <translation>aujourd’hui, %1</translation>
    </message>
    <message>
        <source>since %1</source>
        <extracomment>%1 as in &quot;09:41&quot;, &quot;yesterday 21:40&quot; or &quot;3 Mar&quot;</extracomment>
        <translation>depuis %1</translation>
    </message>
    <message>
        <source>at least since %1</source>
        <translation>au moins depuis %1</translation>
    </message>
    <message>
        <source>read %1</source>
        <extracomment>%1 as in &quot;2 min ago&quot; or &quot;yesterday 21:40&quot;</extracomment>
        <translation>lu %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln min ago</source>
        <translation>
            <numerusform>il y a %Ln&#xa0;min</numerusform>
            <numerusform>il y a %Ln&#xa0;min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>read %Ln h ago</source>
        <translation>
            <numerusform>lu il y a %Ln&#xa0;h</numerusform>
            <numerusform>lu il y a %Ln&#xa0;h</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::AttentionFilterController</name>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message numerus="yes">
        <source>All %Ln consoles</source>
        <translation>
            <numerusform>%Ln console, toutes</numerusform>
            <numerusform>Les %Ln consoles</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::AttentionNowController</name>
    <message>
        <source>Nothing needs attention</source>
        <translation>Rien ne demande votre attention</translation>
    </message>
    <message>
        <source>Nothing known needs attention</source>
        <translation>Rien de connu ne demande votre attention</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Show all %1</source>
        <extracomment>%1 a number of rows</extracomment>
        <translation>Afficher les %1</translation>
    </message>
</context>
<context>
    <name>lodestar::AttentionViewController</name>
    <message>
        <source>99+</source>
        <extracomment>%1 the name of a tab</extracomment>
        <translation>99+</translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln things</source>
        <translation>
            <numerusform>%1, %Ln point</numerusform>
            <numerusform>%1, %Ln points</numerusform>
        </translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>Attention</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>The name of a file: the tab &quot;Attention&quot; and what of it</extracomment>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>lodestar::BarButtonOutlet</name>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualiser</translation>
    </message>
</context>
<context>
    <name>lodestar::ChangeText</name>
    <message>
        <source>#%1 opened</source>
        <translation>#%1 ouvert</translation>
    </message>
    <message>
        <source>#%1 gone</source>
        <translation>#%1 disparu</translation>
    </message>
    <message>
        <source>#%1</source>
        <translation>#%1</translation>
    </message>
    <message>
        <source>LED on</source>
        <translation>LED allumée</translation>
    </message>
    <message>
        <source>LED off</source>
        <translation>LED éteinte</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Hors ligne</translation>
    </message>
    <message>
        <source>Online again after %1</source>
        <translation>De nouveau en ligne après %1</translation>
    </message>
    <message>
        <source>%1 not read</source>
        <translation>%1 illisibles</translation>
    </message>
    <message>
        <source>%1 read again</source>
        <translation>%1 de nouveau lisibles</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>Gone</source>
        <translation>Disparu</translation>
    </message>
    <message>
        <source>Certificate changed</source>
        <translation>Certificat changé</translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <extracomment>A state before and after.</extracomment>
        <translation>de %1 à %2</translation>
    </message>
    <message>
        <source>worse</source>
        <translation>pire</translation>
    </message>
    <message>
        <source>better</source>
        <translation>mieux</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>Hours and minutes.</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Aujourd’hui</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Hier</translation>
    </message>
    <message numerus="yes">
        <source>%Ln consoles</source>
        <translation>
            <numerusform>%Ln console</numerusform>
            <numerusform>%Ln consoles</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln events opened</source>
        <translation>
            <numerusform>%Ln événement ouvert</numerusform>
            <numerusform>%Ln événements ouverts</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln events gone</source>
        <translation>
            <numerusform>%Ln événement disparu</numerusform>
            <numerusform>%Ln événements disparus</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln systems</source>
        <translation>
            <numerusform>%Ln système</numerusform>
            <numerusform>%Ln systèmes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln IO servers</source>
        <translation>
            <numerusform>%Ln serveur E/S</numerusform>
            <numerusform>%Ln serveurs E/S</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln groups</source>
        <translation>
            <numerusform>%Ln groupe</numerusform>
            <numerusform>%Ln groupes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln events</source>
        <translation>
            <numerusform>%Ln événement</numerusform>
            <numerusform>%Ln événements</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln partitions</source>
        <translation>
            <numerusform>%Ln partition</numerusform>
            <numerusform>%Ln partitions</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln min</source>
        <translation>
            <numerusform>%Ln&#xa0;min</numerusform>
            <numerusform>%Ln&#xa0;min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln days</source>
        <translation>
            <numerusform>%Ln jour</numerusform>
            <numerusform>%Ln jours</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln h</source>
        <translation>
            <numerusform>%Ln&#xa0;h</numerusform>
            <numerusform>%Ln&#xa0;h</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::ChangesViewController</name>
    <message>
        <source>Changes</source>
        <translation>Changements</translation>
    </message>
    <message>
        <source>Nothing left to show</source>
        <translation>Plus rien à afficher</translation>
    </message>
    <message>
        <source>Nothing changed in 30 days.</source>
        <translation>Rien n’a changé en 30 jours.</translation>
    </message>
    <message>
        <source>Changes show after the second reading.</source>
        <translation>Les changements apparaissent après la deuxième lecture.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln more changes are not shown.</source>
        <translation>
            <numerusform>%Ln autre changement n’est pas affiché.</numerusform>
            <numerusform>%Ln autres changements ne sont pas affichés.</numerusform>
        </translation>
    </message>
    <message>
        <source>Older changes were left out</source>
        <translation>Les changements plus anciens sont omis</translation>
    </message>
    <message>
        <source>What changed before could not be read. The damaged file was set aside.</source>
        <translation>Les changements précédents n’ont pas pu être lus. Le fichier endommagé a été mis de côté.</translation>
    </message>
</context>
<context>
    <name>lodestar::Clipboard</name>
    <message>
        <source>Could not be copied: the clipboard is in use by another program.</source>
        <translation>Copie impossible&#xa0;: un autre programme utilise le presse-papiers.</translation>
    </message>
    <message>
        <source>Copied %1</source>
        <extracomment>%1 what was copied</extracomment>
        <translation>%1 copié</translation>
    </message>
</context>
<context>
    <name>lodestar::Commands</name>
    <message>
        <source>Watch</source>
        <translation>Surveillance</translation>
    </message>
    <message>
        <source>Fleet sheet</source>
        <translation>Feuille de consoles</translation>
    </message>
    <message>
        <source>Intro tour</source>
        <translation>Visite guidée</translation>
    </message>
    <message>
        <source>Bring back the demo</source>
        <translation>Retrouver la démo</translation>
    </message>
</context>
<context>
    <name>lodestar::ConnectionContent</name>
    <message>
        <source>%1 to %2</source>
        <extracomment>%1 and %2 dates</extracomment>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>%1, ended %2</source>
        <extracomment>%1 as in &quot;1 Sep 2025 to 31 Aug 2027&quot;, %2 a date</extracomment>
        <translation>%1, expiré le %2</translation>
    </message>
    <message>
        <source>%1, begins %2</source>
        <extracomment>%1 as in &quot;1 Sep 2025 to 31 Aug 2027&quot;, %2 a date</extracomment>
        <translation>%1, valide dès le %2</translation>
    </message>
    <message>
        <source>changed %1</source>
        <extracomment>%1 as in &quot;today, 02:58&quot; or &quot;3 Mar&quot;</extracomment>
        <translation>changé %1</translation>
    </message>
    <message>
        <source>seen for the first time</source>
        <translation>vu pour la première fois</translation>
    </message>
    <message>
        <source>unchanged since %1</source>
        <translation>inchangé depuis %1</translation>
    </message>
    <message>
        <source>unchanged</source>
        <translation>inchangé</translation>
    </message>
    <message>
        <source>The new one is neither vouched for by this device’s authorities nor the one shown at the session check.</source>
        <translation>Le nouveau n’est ni garanti par les autorités de cet appareil, ni celui de la vérification de session.</translation>
    </message>
    <message>
        <source>Vouched for by this device’s authorities.</source>
        <translation>Garanti par les autorités de cet appareil.</translation>
    </message>
    <message>
        <source>Not vouched for by this device’s authorities. Consoles sign their own, so Lodestar takes what it is shown and says here when it changes.</source>
        <translation>Non garanti par les autorités de cet appareil. Les consoles signent elles-mêmes le leur&#xa0;; Lodestar prend donc ce qu’on lui montre et dit ici quand cela change.</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>Certificat</translation>
    </message>
    <message>
        <source>At the logon, new</source>
        <translation>À l’identification, nouveau</translation>
    </message>
    <message>
        <source>At the session check, known since %1</source>
        <translation>À la vérification de session, connu depuis %1</translation>
    </message>
    <message>
        <source>At the session check</source>
        <translation>À la vérification de session</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Titulaire</translation>
    </message>
    <message>
        <source>Issuer</source>
        <translation>Émetteur</translation>
    </message>
    <message>
        <source>itself</source>
        <translation>lui-même</translation>
    </message>
    <message>
        <source>Valid</source>
        <translation>Validité</translation>
    </message>
    <message>
        <source>SHA-256 fingerprint</source>
        <translation>Empreinte SHA-256</translation>
    </message>
    <message>
        <source>Compared with last time</source>
        <translation>Par rapport à la dernière fois</translation>
    </message>
    <message>
        <source>Trust</source>
        <translation>Confiance</translation>
    </message>
    <message>
        <source>The rest was read %1.</source>
        <extracomment>%1 as in &quot;at 09:26&quot; or &quot;yesterday 21:40&quot;</extracomment>
        <translation>Le reste a été lu %1.</translation>
    </message>
    <message>
        <source>The rest was read just now.</source>
        <translation>Le reste vient d’être lu.</translation>
    </message>
    <message>
        <source>Nothing of it could be read.</source>
        <translation>Rien n’a pu être lu.</translation>
    </message>
    <message>
        <source>%1 could not be read.</source>
        <extracomment>%1 names of feeds, as in &quot;Partitions and resource groups&quot;</extracomment>
        <translation>%1&#xa0;: lecture impossible.</translation>
    </message>
    <message>
        <source>Not tried yet</source>
        <translation>Pas encore essayé</translation>
    </message>
    <message>
        <source>Offline since %1</source>
        <extracomment>%1 as in &quot;02:58&quot; or &quot;yesterday 21:40&quot;</extracomment>
        <translation>Hors ligne depuis %1</translation>
    </message>
    <message>
        <source>Online</source>
        <translation>En ligne</translation>
    </message>
    <message>
        <source>Everything was read %1, in %2.</source>
        <extracomment>%1 as in &quot;2 min ago&quot; or &quot;at 09:41&quot;, %2 a time in seconds</extracomment>
        <translation>Tout a été lu %1, en %2.</translation>
    </message>
    <message>
        <source>What to try</source>
        <translation>Que faire</translation>
    </message>
    <message>
        <source>Last success</source>
        <translation>Dernier succès</translation>
    </message>
    <message>
        <source>never</source>
        <translation>jamais</translation>
    </message>
    <message>
        <source>%1, in %2</source>
        <extracomment>%1 as in &quot;today, 02:43&quot;, %2 a time in seconds</extracomment>
        <translation>%1, en %2</translation>
    </message>
    <message>
        <source>Read in full</source>
        <translation>Lu en entier</translation>
    </message>
    <message>
        <source>Version then</source>
        <translation>Version d’alors</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nom</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>connect</source>
        <translation>connexion</translation>
    </message>
    <message>
        <source>TLS</source>
        <translation>TLS</translation>
    </message>
    <message>
        <source>Session check</source>
        <translation>Session</translation>
    </message>
    <message>
        <source>session</source>
        <translation>session</translation>
    </message>
    <message>
        <source>Logon</source>
        <translation>Identification</translation>
    </message>
    <message>
        <source>logon</source>
        <translation>identification</translation>
    </message>
    <message>
        <source>Six feeds</source>
        <translation>Six flux</translation>
    </message>
    <message>
        <source>feeds</source>
        <translation>flux</translation>
    </message>
    <message>
        <source>certificate as before</source>
        <translation>certificat comme avant</translation>
    </message>
    <message>
        <source>first contact</source>
        <translation>premier contact</translation>
    </message>
    <message>
        <source>certificate changed</source>
        <translation>certificat changé</translation>
    </message>
    <message>
        <source>address given</source>
        <translation>adresse donnée</translation>
    </message>
    <message>
        <source>port 12443</source>
        <translation>port 12443</translation>
    </message>
    <message>
        <source>%1, key accepted</source>
        <extracomment>%1 an HTTP status</extracomment>
        <translation>%1, clé acceptée</translation>
    </message>
    <message>
        <source>%1, key ended</source>
        <translation>%1, clé expirée</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>%1 a reason, %2 a number such as -1202 or 401</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Not the certificate of the session check</source>
        <translation>Pas le certificat de la vérification de session</translation>
    </message>
    <message>
        <source>no key yet</source>
        <translation>pas encore de clé</translation>
    </message>
    <message>
        <source>not needed</source>
        <translation>pas nécessaire</translation>
    </message>
    <message>
        <source>not reached</source>
        <translation>pas atteint</translation>
    </message>
    <message>
        <source>Management Console</source>
        <translation>Console de gestion</translation>
    </message>
    <message>
        <source>Managed Systems</source>
        <translation>Systèmes gérés</translation>
    </message>
    <message>
        <source>Virtual IO Servers</source>
        <translation>Serveurs E/S virtuels</translation>
    </message>
    <message>
        <source>Logical Partitions</source>
        <translation>Partitions logiques</translation>
    </message>
    <message>
        <source>Serviceable Events</source>
        <translation>Événements de service</translation>
    </message>
    <message>
        <source>Resource Groups</source>
        <translation>Groupes de ressources</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1&#xa0;Ko</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1&#xa0;Mo</translation>
    </message>
    <message numerus="yes">
        <source>%Ln entries</source>
        <translation>
            <numerusform>%Ln entrée</numerusform>
            <numerusform>%Ln entrées</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, the console failed to answer</source>
        <extracomment>%1 an HTTP status</extracomment>
        <translation>%1, la console n’a pas pu répondre</translation>
    </message>
    <message>
        <source>%1 were last read %2</source>
        <extracomment>%1 the name of a feed, %2 as in &quot;at 09:26&quot; or &quot;yesterday 21:40&quot;</extracomment>
        <translation>%1, dernière lecture %2</translation>
    </message>
    <message>
        <source>%1, %2 %3</source>
        <extracomment>%1 the same for another feed, which %2 and %3 add</extracomment>
        <translation>%1, %2 %3</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>%1 a sentence that lacks its end</extracomment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1&#xa0;ms</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1&#xa0;s</translation>
    </message>
    <message>
        <source>at %1</source>
        <extracomment>%1 a time of day</extracomment>
        <translation>à %1</translation>
    </message>
    <message>
        <source>Last attempt</source>
        <translation>Dernière tentative</translation>
    </message>
    <message>
        <source>Feeds</source>
        <translation>Flux</translation>
    </message>
    <message>
        <source>%1 of 6</source>
        <extracomment>%1 how many of the six feeds were read</extracomment>
        <translation>%1 sur 6</translation>
    </message>
    <message numerus="yes">
        <source>The rest is %Ln min old.</source>
        <translation>
            <numerusform>Le reste date de %Ln&#xa0;min.</numerusform>
            <numerusform>Le reste date de %Ln&#xa0;min.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Online, %Ln of 6 feeds missing</source>
        <extracomment>%n of the six feeds</extracomment>
        <translation>
            <numerusform>En ligne, %Ln flux sur 6 manque</numerusform>
            <numerusform>En ligne, %Ln flux sur 6 manquent</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln bytes</source>
        <translation>
            <numerusform>%Ln octet</numerusform>
            <numerusform>%Ln octets</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>no answer within %Ln s</source>
        <translation>
            <numerusform>pas de réponse en %Ln&#xa0;s</numerusform>
            <numerusform>pas de réponse en %Ln&#xa0;s</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::ConnectionViewController</name>
    <message>
        <source>Connection</source>
        <translation>Connexion</translation>
    </message>
    <message numerus="yes">
        <source>%Ln rows</source>
        <translation>
            <numerusform>%Ln ligne</numerusform>
            <numerusform>%Ln lignes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::CorvelListCell</name>
    <message>
        <source>N/A</source>
        <translation>N/D</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Hors ligne</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Bon</translation>
    </message>
    <message>
        <source>%1, updating</source>
        <extracomment>A console in the list, read aloud while it is being fetched: %1 its name</extracomment>
        <translation>%1, lecture</translation>
    </message>
    <message>
        <source>%1, %2, attention %3, events %4</source>
        <extracomment>A console in the list, read aloud: %1 name, %2 status word, %3 and %4 counts</extracomment>
        <translation>%1, %2, attention %3, événements %4</translation>
    </message>
</context>
<context>
    <name>lodestar::CorvelListViewController</name>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>My Corvels</source>
        <translation>Mes Corvels</translation>
    </message>
</context>
<context>
    <name>lodestar::CorvelMenu</name>
    <message>
        <source>Offline</source>
        <translation>Hors ligne</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>Attention</translation>
    </message>
    <message>
        <source>Copy Address</source>
        <translation>Copier l’adresse</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>lodestar::CorvelOverviewTableViewController</name>
    <message>
        <source>not loaded</source>
        <translation>non chargé</translation>
    </message>
    <message>
        <source>Managed Systems</source>
        <translation>Systèmes gérés</translation>
    </message>
    <message>
        <source>Virtual IO Servers</source>
        <translation>Serveurs E/S virtuels</translation>
    </message>
    <message>
        <source>Logical Partitions</source>
        <translation>Partitions logiques</translation>
    </message>
    <message>
        <source>Resource Groups</source>
        <translation>Groupes de ressources</translation>
    </message>
    <message>
        <source>Serviceable Events</source>
        <translation>Événements de service</translation>
    </message>
    <message>
        <source>Management Console</source>
        <translation>Console de gestion</translation>
    </message>
</context>
<context>
    <name>lodestar::DBusMessageService</name>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
</context>
<context>
    <name>lodestar::DashboardBars</name>
    <message>
        <source>%1 since yesterday</source>
        <translation>%1 depuis hier</translation>
    </message>
</context>
<context>
    <name>lodestar::DashboardMarks</name>
    <message>
        <source>missing from %1 of %2</source>
        <extracomment>%1 of %2 consoles</extracomment>
        <translation>manque sur %1 des %2</translation>
    </message>
    <message>
        <source>%1 of %2 answered in full</source>
        <extracomment>%1 of %2 consoles</extracomment>
        <translation>%1 sur %2 ont répondu en entier</translation>
    </message>
    <message>
        <source>Read %1.</source>
        <extracomment>%1 and %2 as in &quot;09:41&quot; or &quot;yesterday 21:40&quot;</extracomment>
        <translation>Lecture&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Read %1 to %2.</source>
        <translation>Lecture&#xa0;: %1 à %2.</translation>
    </message>
    <message numerus="yes">
        <source>Next in %Ln min.</source>
        <translation>
            <numerusform>Suivante dans %Ln&#xa0;min.</numerusform>
            <numerusform>Suivante dans %Ln&#xa0;min.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::DashboardTableViewController</name>
    <message>
        <source>Dashboard</source>
        <translation>Tableau de bord</translation>
    </message>
    <message>
        <source>Waiting for %1</source>
        <translation>En attente de %1</translation>
    </message>
    <message numerus="yes">
        <source>Waiting for %1 of %Ln consoles</source>
        <translation>
            <numerusform>En attente de %1 sur %Ln console</numerusform>
            <numerusform>En attente de %1 sur %Ln consoles</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::DayBarsOutlet</name>
    <message>
        <source>today</source>
        <translation>aujourd’hui</translation>
    </message>
    <message>
        <source>Worse, above</source>
        <translation>Pire, en haut</translation>
    </message>
    <message>
        <source>Better, below</source>
        <translation>Mieux, en bas</translation>
    </message>
    <message>
        <source>%1 %2 worse, %3 better</source>
        <extracomment>A day, and what a chart tells of it.</extracomment>
        <translation>%1 %2 pires, %3 mieux</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>A day, and its number of new events.</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>New Events a Day</source>
        <translation>Nouveaux événements par jour</translation>
    </message>
    <message numerus="yes">
        <source>%Ln days, %1</source>
        <extracomment>How many days a chart has, and what it tells of the last.</extracomment>
        <translation>
            <numerusform>%Ln jour, %1</numerusform>
            <numerusform>%Ln jours, %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln days, %2</source>
        <extracomment>A chart&apos;s name, how many days it has, and what it tells of the last.</extracomment>
        <translation>
            <numerusform>%1, %Ln jour, %2</numerusform>
            <numerusform>%1, %Ln jours, %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::DeltaCorvelViewController</name>
    <message>
        <source>Add Corvel</source>
        <translation>Ajouter un Corvel</translation>
    </message>
    <message>
        <source>Edit Corvel</source>
        <translation>Modifier le Corvel</translation>
    </message>
    <message>
        <source>verifying...</source>
        <translation>vérification...</translation>
    </message>
    <message>
        <source>Please enter all fields</source>
        <translation>Remplissez tous les champs</translation>
    </message>
    <message>
        <source>Corvel has already been added</source>
        <translation>Ce Corvel est déjà ajouté</translation>
    </message>
    <message>
        <source>gathering data...</source>
        <translation>collecte des données...</translation>
    </message>
</context>
<context>
    <name>lodestar::DetailViewController</name>
    <message>
        <source>Serial Number</source>
        <translation>Numéro de série</translation>
    </message>
    <message>
        <source>Machine Type</source>
        <translation>Type de machine</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>Copy Value</source>
        <translation>Copier la valeur</translation>
    </message>
    <message>
        <source>Copy All</source>
        <translation>Tout copier</translation>
    </message>
    <message>
        <source>Find on All Consoles</source>
        <translation>Rechercher sur toutes les consoles</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message numerus="yes">
        <source>%Ln rows</source>
        <translation>
            <numerusform>%Ln ligne</numerusform>
            <numerusform>%Ln lignes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::EventOrderViewController</name>
    <message>
        <source>Order</source>
        <translation>Tri</translation>
    </message>
    <message>
        <source>As the console sends them</source>
        <translation>Comme la console les envoie</translation>
    </message>
    <message>
        <source>Newest first</source>
        <translation>Plus récents d’abord</translation>
    </message>
    <message>
        <source>By status</source>
        <translation>Par état</translation>
    </message>
    <message>
        <source>By reference code</source>
        <translation>Par code de référence</translation>
    </message>
</context>
<context>
    <name>lodestar::FeedListViewController</name>
    <message>
        <source>updating...</source>
        <translation>lecture...</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>The name of a file: what is listed, such as &quot;Managed Systems&quot;, and a console&apos;s name</extracomment>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>lodestar::FeedName</name>
    <message>
        <source>console details</source>
        <translation>détails de la console</translation>
    </message>
    <message>
        <source>Console details</source>
        <translation>Détails de la console</translation>
    </message>
    <message>
        <source>systems</source>
        <translation>systèmes</translation>
    </message>
    <message>
        <source>Systems</source>
        <translation>Systèmes</translation>
    </message>
    <message>
        <source>IO servers</source>
        <translation>Serveurs E/S</translation>
    </message>
    <message>
        <source>partitions</source>
        <translation>partitions</translation>
    </message>
    <message>
        <source>Partitions</source>
        <translation>Partitions</translation>
    </message>
    <message>
        <source>events</source>
        <translation>événements</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Événements</translation>
    </message>
    <message>
        <source>resource groups</source>
        <translation>groupes de ressources</translation>
    </message>
    <message>
        <source>Resource groups</source>
        <translation>Groupes de ressources</translation>
    </message>
    <message>
        <source>groups</source>
        <translation>groupes</translation>
    </message>
    <message>
        <source>%1 not read</source>
        <extracomment>%1 the name of a feed, as in &quot;Partitions&quot;</extracomment>
        <translation>%1 illisibles</translation>
    </message>
    <message>
        <source>%1 and %2 not read</source>
        <extracomment>%1 and %2 names of feeds, as in &quot;Partitions&quot; and &quot;groups&quot;</extracomment>
        <translation>%1 et %2 illisibles</translation>
    </message>
    <message>
        <source>Nothing of it could be read</source>
        <translation>Rien n’a pu être lu</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 et %2</translation>
    </message>
    <message>
        <source>%1, %2 and %3</source>
        <translation>%1, %2 et %3</translation>
    </message>
    <message numerus="yes">
        <source>%Ln of 6 feeds not read</source>
        <extracomment>%n of the six feeds</extracomment>
        <translation>
            <numerusform>%Ln flux sur 6 non lu</numerusform>
            <numerusform>%Ln flux sur 6 non lus</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 and %Ln more</source>
        <extracomment>%1 and %2 names, %n how many more there are</extracomment>
        <translation>
            <numerusform>%1, %2 et %Ln autre</numerusform>
            <numerusform>%1, %2 et %Ln autres</numerusform>
        </translation>
    </message>
    <message>
        <source>IO servers</source>
        <comment>within a sentence</comment>
        <translation>serveurs E/S</translation>
    </message>
</context>
<context>
    <name>lodestar::FeedbackHost</name>
    <message>
        <source>Keep</source>
        <translation>Garder</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Envoyer</translation>
    </message>
    <message>
        <source>Lodestar ended unexpectedly</source>
        <translation>Lodestar s’est arrêté de façon inattendue</translation>
    </message>
    <message numerus="yes">
        <source>%Ln reports were made on this device. They hold no passwords and are sent nowhere by themselves.</source>
        <translation>
            <numerusform>%Ln rapport a été fait sur cet appareil. Il ne contient pas de mots de passe et n’est envoyé nulle part de lui-même.</numerusform>
            <numerusform>%Ln rapports ont été faits sur cet appareil. Ils ne contiennent pas de mots de passe et ne sont envoyés nulle part d’eux-mêmes.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::FeedbackViewController</name>
    <message>
        <source>Feedback</source>
        <translation>Commentaires</translation>
    </message>
    <message>
        <source>Discard this feedback?</source>
        <translation>Abandonner ces commentaires&#xa0;?</translation>
    </message>
    <message>
        <source>Keep Editing</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Abandonner</translation>
    </message>
    <message>
        <source>Report Saved</source>
        <translation>Rapport enregistré</translation>
    </message>
    <message>
        <source>It is in the list of reports on this device.</source>
        <translation>Il est dans la liste des rapports de cet appareil.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>What Is Sent</source>
        <translation>Ce qui est envoyé</translation>
    </message>
    <message>
        <source>What Is Saved</source>
        <translation>Ce qui est enregistré</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Envoyer</translation>
    </message>
    <message>
        <source>The report could not be saved</source>
        <translation>Le rapport n’a pas pu être enregistré</translation>
    </message>
</context>
<context>
    <name>lodestar::FileSaver</name>
    <message>
        <source>Could not be saved: %1</source>
        <extracomment>%1 a reason, such as &quot;the disk is full.&quot;</extracomment>
        <translation>Enregistrement impossible&#xa0;: %1</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <extracomment>%1 a file&apos;s name</extracomment>
        <translation>Enregistré sous %1</translation>
    </message>
    <message>
        <source>Save as File</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>There is already a file named %1.</source>
        <extracomment>%1 a file&apos;s name</extracomment>
        <translation>Il y a déjà un fichier nommé %1.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
</context>
<context>
    <name>lodestar::FindListController</name>
    <message>
        <source>%1, %2</source>
        <extracomment>The name of a file: what was found, such as &quot;Managed Systems&quot;, and the text that found it</extracomment>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>lodestar::FindText</name>
    <message>
        <source>Managed Systems</source>
        <translation>Systèmes gérés</translation>
    </message>
    <message>
        <source>Virtual IO Servers</source>
        <translation>Serveurs E/S virtuels</translation>
    </message>
    <message>
        <source>Logical Partitions</source>
        <translation>Partitions logiques</translation>
    </message>
    <message>
        <source>Resource Groups</source>
        <translation>Groupes de ressources</translation>
    </message>
    <message>
        <source>Serviceable Events</source>
        <translation>Événements de service</translation>
    </message>
    <message>
        <source>Consoles</source>
        <translation>Consoles</translation>
    </message>
    <message>
        <source>Nothing was read yet. Refresh first.</source>
        <translation>Rien n’a encore été lu. Actualisez d’abord.</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <extracomment>%1 and %2 as in &quot;09:41&quot; or &quot;yesterday 21:40&quot;</extracomment>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>%1+</source>
        <extracomment>More than can be counted at a glance</extracomment>
        <translation>%1+</translation>
    </message>
    <message>
        <source>Show all %1</source>
        <translation>Afficher les %1</translation>
    </message>
    <message>
        <source>Nothing found for “%1”</source>
        <translation>Rien trouvé pour «&#xa0;%1&#xa0;»</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln consoles were searched.</source>
        <translation>
            <numerusform>%1 sur %Ln console a été consultée.</numerusform>
            <numerusform>%1 sur %Ln consoles ont été consultées.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln things</source>
        <translation>
            <numerusform>%Ln objet</numerusform>
            <numerusform>%Ln objets</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln consoles</source>
        <extracomment>Within &quot;2,318 things on 5 of 6 consoles, read 09:41.&quot;</extracomment>
        <translation>
            <numerusform>%1 console sur %Ln</numerusform>
            <numerusform>%1 des %Ln consoles</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 on %2, read %3.</source>
        <extracomment>%1 as in &quot;2,318 things&quot;, %2 as in &quot;5 of 6 consoles&quot;, %3 as in &quot;09:41&quot; or &quot;09:41 to 09:43&quot;</extracomment>
        <translation>%1 sur %2, lecture&#xa0;: %3.</translation>
    </message>
    <message numerus="yes">
        <source>%1 were not read.</source>
        <extracomment>%1 the names of so many consoles</extracomment>
        <translation>
            <numerusform>%1 n’a pas été lue.</numerusform>
            <numerusform>%1 n’ont pas été lues.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 are missing.</source>
        <extracomment>What was not read, and the names of its consoles.</extracomment>
        <translation>%1 de %2 manquent.</translation>
    </message>
</context>
<context>
    <name>lodestar::FindViewController</name>
    <message>
        <source>Names</source>
        <translation>Noms</translation>
    </message>
    <message>
        <source>helios-03, vios-harbour-2b, Ledger production</source>
        <translation>helios-03, vios-harbour-2b, Ledger production</translation>
    </message>
    <message>
        <source>Addresses and serials</source>
        <translation>Adresses et numéros de série</translation>
    </message>
    <message>
        <source>192.0.2.63, corvel-b, 06A17C2, 4210</source>
        <translation>192.0.2.63, corvel-b, 06A17C2, 4210</translation>
    </message>
    <message>
        <source>Reference codes</source>
        <translation>Codes de référence</translation>
    </message>
    <message>
        <source>X417-2208, or just X417</source>
        <translation>X417-2208, ou juste X417</translation>
    </message>
    <message>
        <source>Event numbers and texts</source>
        <translation>Numéros et textes d’événements</translation>
    </message>
    <message>
        <source>#1042, power supply</source>
        <translation>#1042, power supply</translation>
    </message>
    <message>
        <source>Find on all consoles</source>
        <translation>Rechercher partout</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Récents</translation>
    </message>
    <message>
        <source>What can be found</source>
        <translation>Ce qui peut être trouvé</translation>
    </message>
</context>
<context>
    <name>lodestar::FindingRows</name>
    <message>
        <source>Expected</source>
        <translation>Prévu</translation>
    </message>
    <message>
        <source>Marked as expected until it runs again</source>
        <translation>Noté comme prévu jusqu’à la remise en marche</translation>
    </message>
</context>
<context>
    <name>lodestar::FindingText</name>
    <message>
        <source>%1, %2</source>
        <extracomment>A sentence and a further part of it: &quot;System in error&quot; and &quot;X417-2208&quot;</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Stopped, ran until %1</source>
        <extracomment>%1 a time of day</extracomment>
        <translation>Arrêté, tournait jusqu’à %1</translation>
    </message>
    <message>
        <source>IO server stopped, ran until %1</source>
        <extracomment>%1 a time of day</extracomment>
        <translation>Serveur E/S arrêté, tournait jusqu’à %1</translation>
    </message>
    <message>
        <source>Partition stopped, ran until %1</source>
        <translation>Arrêtée, tournait jusqu’à %1</translation>
    </message>
    <message>
        <source>call home</source>
        <translation>appel au fabricant</translation>
    </message>
    <message>
        <source>System incomplete</source>
        <translation>Système incomplet</translation>
    </message>
    <message>
        <source>System in error</source>
        <translation>Système en erreur</translation>
    </message>
    <message>
        <source>LED on</source>
        <translation>LED allumée</translation>
    </message>
    <message>
        <source>IO server in error</source>
        <translation>Serveur E/S en erreur</translation>
    </message>
    <message>
        <source>Partition in error</source>
        <translation>Partition en erreur</translation>
    </message>
    <message>
        <source>Offline, %1</source>
        <extracomment>%1 why, as in &quot;connection refused&quot;</extracomment>
        <translation>Hors ligne, %1</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Hors ligne</translation>
    </message>
    <message>
        <source>LED on, system %1</source>
        <extracomment>%1 the console&apos;s word for a system&apos;s state</extracomment>
        <translation>LED allumée, système %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln resources in error</source>
        <translation>
            <numerusform>%1 sur %Ln ressource en erreur</numerusform>
            <numerusform>%1 sur %Ln ressources en erreur</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln consoles</source>
        <translation>
            <numerusform>%Ln console</numerusform>
            <numerusform>%Ln consoles</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln systems</source>
        <translation>
            <numerusform>%Ln système</numerusform>
            <numerusform>%Ln systèmes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln IO servers</source>
        <translation>
            <numerusform>%Ln serveur E/S</numerusform>
            <numerusform>%Ln serveurs E/S</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln partitions</source>
        <translation>
            <numerusform>%Ln partition</numerusform>
            <numerusform>%Ln partitions</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln groups</source>
        <translation>
            <numerusform>%Ln groupe</numerusform>
            <numerusform>%Ln groupes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln events</source>
        <translation>
            <numerusform>%Ln événement</numerusform>
            <numerusform>%Ln événements</numerusform>
        </translation>
    </message>
    <message>
        <source>In error on %1</source>
        <extracomment>%1 the name of a system</extracomment>
        <translation>En erreur sur %1</translation>
    </message>
    <message>
        <source>system incomplete</source>
        <translation>système incomplet</translation>
    </message>
    <message>
        <source>system in error</source>
        <translation>système en erreur</translation>
    </message>
    <message>
        <source>attention LED on</source>
        <extracomment>%1 the console&apos;s word for a system&apos;s state</extracomment>
        <translation>LED d’attention allumée</translation>
    </message>
    <message>
        <source>system %1</source>
        <translation>système %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln things need attention</source>
        <translation>
            <numerusform>%Ln point demande votre attention</numerusform>
            <numerusform>%Ln points demandent votre attention</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln events are open</source>
        <translation>
            <numerusform>%Ln événement est ouvert</numerusform>
            <numerusform>%Ln événements sont ouverts</numerusform>
        </translation>
    </message>
    <message>
        <source>No faults</source>
        <translation>Aucune panne</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln consoles answered in full</source>
        <translation>
            <numerusform>%1 sur %Ln console a répondu en entier</numerusform>
            <numerusform>%1 sur %Ln consoles ont répondu en entier</numerusform>
        </translation>
    </message>
    <message>
        <source>updating... %1 of %2</source>
        <translation>lecture... %1 sur %2</translation>
    </message>
    <message>
        <source>The console did not answer. What it would report is not known.</source>
        <translation>La console n’a pas répondu. Ce qu’elle signalerait est inconnu.</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln consoles did not answer. What they would report is not known.</source>
        <translation>
            <numerusform>%1 sur %Ln console n’a pas répondu. Ce qu’elle signalerait est inconnu.</numerusform>
            <numerusform>%1 sur %Ln consoles n’ont pas répondu. Ce qu’elles signaleraient est inconnu.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln things needed attention there before.</source>
        <translation>
            <numerusform>%Ln point y demandait votre attention avant.</numerusform>
            <numerusform>%Ln points y demandaient votre attention avant.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln more things are not shown.</source>
        <translation>
            <numerusform>%Ln autre point n’est pas affiché.</numerusform>
            <numerusform>%Ln autres points ne sont pas affichés.</numerusform>
        </translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Erreurs</translation>
    </message>
    <message>
        <source>Not answering</source>
        <translation>Sans réponse</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>Avertissements</translation>
    </message>
    <message>
        <source>Open events</source>
        <translation>Événements ouverts</translation>
    </message>
    <message>
        <source>Consoles</source>
        <translation>Consoles</translation>
    </message>
    <message>
        <source>Systems</source>
        <translation>Systèmes</translation>
    </message>
    <message>
        <source>IO servers</source>
        <translation>Serveurs E/S</translation>
    </message>
    <message>
        <source>Partitions</source>
        <translation>Partitions</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Groupes</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Événements</translation>
    </message>
    <message>
        <source>consoles</source>
        <translation>consoles</translation>
    </message>
    <message>
        <source>systems</source>
        <translation>systèmes</translation>
    </message>
    <message>
        <source>partitions</source>
        <translation>partitions</translation>
    </message>
    <message>
        <source>groups</source>
        <translation>groupes</translation>
    </message>
    <message>
        <source>events</source>
        <translation>événements</translation>
    </message>
    <message numerus="yes">
        <source>%Ln times</source>
        <translation>
            <numerusform>%Ln fois</numerusform>
            <numerusform>%Ln fois</numerusform>
        </translation>
    </message>
    <message>
        <source>IO servers</source>
        <comment>within a sentence</comment>
        <translation>serveurs E/S</translation>
    </message>
</context>
<context>
    <name>lodestar::FleetAgainViewController</name>
    <message>
        <source>Passwords, one a user</source>
        <translation>Mots de passe</translation>
    </message>
</context>
<context>
    <name>lodestar::FleetChooseViewController</name>
    <message>
        <source>Import Fleet Sheet</source>
        <translation>Importer une feuille</translation>
    </message>
    <message>
        <source>Name, address and user were found in its first line.</source>
        <translation>Nom, adresse et utilisateur sont dans la ligne de titres.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln rows</source>
        <translation>
            <numerusform>%Ln ligne</numerusform>
            <numerusform>%Ln lignes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Verify %Ln Consoles</source>
        <translation>
            <numerusform>Vérifier %Ln console</numerusform>
            <numerusform>Vérifier %Ln consoles</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::FleetEventCell</name>
    <message>
        <source>call home</source>
        <translation>appel au fabricant</translation>
    </message>
</context>
<context>
    <name>lodestar::FleetEventsViewController</name>
    <message>
        <source>Events</source>
        <translation>Événements</translation>
    </message>
    <message numerus="yes">
        <source>%1 were not read.</source>
        <extracomment>%1 the names of so many consoles</extracomment>
        <translation>
            <numerusform>%1 n’a pas été lue.</numerusform>
            <numerusform>%1 n’ont pas été lues.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 are missing.</source>
        <extracomment>What was not read, and the names of its consoles.</extracomment>
        <translation>%1 de %2 manquent.</translation>
    </message>
    <message>
        <source>Nothing was read yet. Refresh first.</source>
        <translation>Rien n’a encore été lu. Actualisez d’abord.</translation>
    </message>
    <message>
        <source>No serviceable events.</source>
        <translation>Aucun événement de service.</translation>
    </message>
    <message>
        <source>Nothing left to show</source>
        <translation>Plus rien à afficher</translation>
    </message>
    <message>
        <source>open</source>
        <translation>ouverts</translation>
    </message>
    <message>
        <source>call home</source>
        <translation>appel au fabricant</translation>
    </message>
    <message>
        <source>%1: %2 of %3</source>
        <extracomment>What is chosen, how many events that are, and how many there are.</extracomment>
        <translation>%1&#xa0;: %2 sur %3</translation>
    </message>
    <message>
        <source>no reference code</source>
        <translation>sans code de référence</translation>
    </message>
    <message>
        <source>no status</source>
        <translation>sans état</translation>
    </message>
</context>
<context>
    <name>lodestar::FleetFile</name>
    <message>
        <source>CSV files (*.csv *.txt *.tsv)</source>
        <extracomment>the files that a dialogue shows; what stands in brackets stays</extracomment>
        <translation>Fichiers CSV (*.csv *.txt *.tsv)</translation>
    </message>
    <message>
        <source>Import Fleet Sheet</source>
        <translation>Importer une feuille</translation>
    </message>
</context>
<context>
    <name>lodestar::FleetSheetText</name>
    <message>
        <source>“%1”</source>
        <extracomment>%1 a name</extracomment>
        <translation>«&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>%1 and %2 names</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <extracomment>%1 names, %n how many more there are</extracomment>
        <translation>
            <numerusform>%1 et %Ln autre</numerusform>
            <numerusform>%1 et %Ln autres</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <extracomment>%1 and %2 names</extracomment>
        <translation>%1 et %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln consoles</source>
        <translation>
            <numerusform>%Ln console</numerusform>
            <numerusform>%Ln consoles</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no first line with name, address and user.</source>
        <translation>Il manque une ligne de titres avec nom, adresse et utilisateur.</translation>
    </message>
    <message>
        <source>This file is too large for a fleet sheet.</source>
        <translation>Ce fichier est trop volumineux pour une feuille de consoles.</translation>
    </message>
    <message>
        <source>This is not a CSV file.</source>
        <translation>Ce n’est pas un fichier CSV.</translation>
    </message>
    <message numerus="yes">
        <source>Passwords are never read from a sheet: %1 are left out.</source>
        <extracomment>%1 titles of columns</extracomment>
        <translation>
            <numerusform>Les mots de passe ne sont jamais lus dans une feuille&#xa0;: la colonne %1 est omise.</numerusform>
            <numerusform>Les mots de passe ne sont jamais lus dans une feuille&#xa0;: les colonnes %1 sont omises.</numerusform>
        </translation>
    </message>
    <message>
        <source>Not used: %1.</source>
        <extracomment>%1 titles of columns</extracomment>
        <translation>Non utilisé&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Row %1: no address</source>
        <translation>Ligne %1&#xa0;: sans adresse</translation>
    </message>
    <message>
        <source>Row %1: no user</source>
        <translation>Ligne %1&#xa0;: sans utilisateur</translation>
    </message>
    <message>
        <source>Row %1: the same address as row %2</source>
        <translation>Ligne %1&#xa0;: même adresse que la ligne %2</translation>
    </message>
    <message>
        <source>Row %1: not an address</source>
        <translation>Ligne %1&#xa0;: adresse non valide</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>en attente</translation>
    </message>
    <message>
        <source>verifying</source>
        <translation>vérification</translation>
    </message>
    <message>
        <source>gathering</source>
        <translation>collecte</translation>
    </message>
    <message>
        <source>verified</source>
        <translation>vérifiée</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>refusée</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>sans réponse</translation>
    </message>
    <message>
        <source>no address</source>
        <translation>sans adresse</translation>
    </message>
    <message>
        <source>not verified</source>
        <translation>non vérifiée</translation>
    </message>
    <message>
        <source>tried</source>
        <translation>essayées</translation>
    </message>
    <message numerus="yes">
        <source>tried, about %Ln s left</source>
        <translation>
            <numerusform>essayées, encore environ %Ln&#xa0;s</numerusform>
            <numerusform>essayées, encore environ %Ln&#xa0;s</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>tried, about %Ln min left</source>
        <translation>
            <numerusform>essayées, encore environ %Ln&#xa0;min</numerusform>
            <numerusform>essayées, encore environ %Ln&#xa0;min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln of 6 missing</source>
        <translation>
            <numerusform>%Ln sur 6 manque</numerusform>
            <numerusform>%Ln sur 6 manquent</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::FleetSheetViewController</name>
    <message>
        <source>Fleet Sheet</source>
        <translation>Feuille de consoles</translation>
    </message>
    <message numerus="yes">
        <source>Export %Ln Consoles</source>
        <translation>
            <numerusform>Exporter %Ln console</numerusform>
            <numerusform>Exporter %Ln consoles</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::FleetUnusableViewController</name>
    <message>
        <source>Cannot be used</source>
        <translation>Inutilisables</translation>
    </message>
</context>
<context>
    <name>lodestar::FleetVerifyViewController</name>
    <message>
        <source>Verifying</source>
        <translation>Vérification</translation>
    </message>
    <message>
        <source>Stopped. Nothing was added.</source>
        <translation>Arrêté. Rien n’a été ajouté.</translation>
    </message>
    <message>
        <source>Import Fleet Sheet</source>
        <translation>Importer une feuille</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <extracomment>%1 a number of so many</extracomment>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>verified and ready to be added</source>
        <translation>vérifiées, prêtes à être ajoutées</translation>
    </message>
    <message numerus="yes">
        <source>Add %Ln Consoles</source>
        <translation>
            <numerusform>Ajouter %Ln console</numerusform>
            <numerusform>Ajouter %Ln consoles</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %Ln are added together, or none.</source>
        <translation>
            <numerusform>Une seule console est ajoutée.</numerusform>
            <numerusform>Les %Ln sont ajoutées ensemble, ou aucune.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 verified and ready to be added</source>
        <translation>%1 sur %2 vérifiées, prêtes à être ajoutées</translation>
    </message>
    <message>
        <source>%1 of %2 tried</source>
        <translation>%1 sur %2 essayées</translation>
    </message>
    <message>
        <source>Not verified</source>
        <translation>Non vérifiées</translation>
    </message>
    <message>
        <source>Not added</source>
        <translation>Non ajoutées</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>En cours</translation>
    </message>
    <message>
        <source>Verified</source>
        <translation>Vérifiées</translation>
    </message>
    <message>
        <source>Show %1 More</source>
        <translation>Afficher %1 de plus</translation>
    </message>
    <message>
        <source>Show all %1</source>
        <translation>Afficher les %1</translation>
    </message>
    <message numerus="yes">
        <source>Try These %Ln Again</source>
        <translation>
            <numerusform>Réessayer celle-ci</numerusform>
            <numerusform>Réessayer ces %Ln consoles</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Save Them as a Sheet</source>
        <translation>
            <numerusform>Enregistrer en feuille</numerusform>
            <numerusform>Enregistrer en feuille</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing Was Added</source>
        <translation>Rien n’a été ajouté</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message numerus="yes">
        <source>Added %Ln consoles</source>
        <translation>
            <numerusform>%Ln console ajoutée</numerusform>
            <numerusform>%Ln consoles ajoutées</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::FoundFields</name>
    <message>
        <source>serial %1</source>
        <translation>série %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln resources</source>
        <translation>
            <numerusform>%Ln ressource</numerusform>
            <numerusform>%Ln ressources</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln in error</source>
        <extracomment>How many of a group&apos;s resources are in error, as in &quot;16 resources, 1 in error&quot;</extracomment>
        <translation>
            <numerusform>%Ln en erreur</numerusform>
            <numerusform>%Ln en erreur</numerusform>
        </translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Bon</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Hors ligne</translation>
    </message>
</context>
<context>
    <name>lodestar::GroupedListViewController</name>
    <message>
        <source>Unknown system</source>
        <translation>Système inconnu</translation>
    </message>
</context>
<context>
    <name>lodestar::KeySheetController</name>
    <message>
        <source>On this screen</source>
        <translation>Sur cet écran</translation>
    </message>
    <message>
        <source>Everywhere</source>
        <translation>Partout</translation>
    </message>
    <message>
        <source>In lists</source>
        <translation>Dans les listes</translation>
    </message>
    <message>
        <source>In charts</source>
        <translation>Dans les graphiques</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Commandes</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Clavier</translation>
    </message>
</context>
<context>
    <name>lodestar::KeyTable</name>
    <message>
        <source>%1 (%2)</source>
        <extracomment>A button&apos;s tip: what the button does, and the keys that do it</extracomment>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>lodestar::LPDetailViewController</name>
    <message>
        <source>Partition Details</source>
        <translation>Détails de la partition</translation>
    </message>
</context>
<context>
    <name>lodestar::LargeChartViewController</name>
    <message>
        <source>No performance data available.</source>
        <translation>Aucune donnée de performance.</translation>
    </message>
    <message>
        <source>Save points as CSV</source>
        <translation>Enregistrer les points en CSV</translation>
    </message>
    <message>
        <source>Save picture</source>
        <translation>Enregistrer l’image</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>lodestar::ListShare</name>
    <message>
        <source>Save list as CSV</source>
        <translation>Enregistrer la liste en CSV</translation>
    </message>
    <message>
        <source>Save as File</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message numerus="yes">
        <source>%Ln rows</source>
        <translation>
            <numerusform>%Ln ligne</numerusform>
            <numerusform>%Ln lignes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::LoginViewController</name>
    <message>
        <source>Passcode</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Login Failed</source>
        <translation>Échec de connexion</translation>
    </message>
    <message>
        <source>Incorrect Credentials</source>
        <translation>Code incorrect</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Reset Application?</source>
        <translation>Réinitialiser Lodestar&#xa0;?</translation>
    </message>
    <message>
        <source>Resetting your password will clear all application data</source>
        <translation>Réinitialiser le code efface toutes les données</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>lodestar::MCViewController</name>
    <message>
        <source>Main Information</source>
        <translation>Informations principales</translation>
    </message>
    <message>
        <source>Model &amp; Serial Information</source>
        <translation>Modèle et numéro de série</translation>
    </message>
    <message>
        <source>Version Information</source>
        <translation>Informations de version</translation>
    </message>
    <message>
        <source>Console information could not be loaded.</source>
        <translation>Les informations de la console n’ont pas pu être chargées.</translation>
    </message>
    <message>
        <source>Management Console</source>
        <translation>Console de gestion</translation>
    </message>
    <message>
        <source>updating...</source>
        <translation>lecture...</translation>
    </message>
    <message>
        <source>Console Data</source>
        <translation>Données de la console</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>N/D</translation>
    </message>
    <message>
        <source>Console Name</source>
        <translation>Nom de la console</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Build Level</source>
        <translation>Niveau de build</translation>
    </message>
</context>
<context>
    <name>lodestar::MSDetailViewController</name>
    <message>
        <source>Main Information</source>
        <translation>Informations principales</translation>
    </message>
    <message>
        <source>Model &amp; Serial Information</source>
        <translation>Modèle et numéro de série</translation>
    </message>
    <message>
        <source>Processor Information</source>
        <translation>Processeurs</translation>
    </message>
    <message>
        <source>Memory Information</source>
        <translation>Mémoire</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>Adresse IP</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Reference Code</source>
        <translation>Code de référence</translation>
    </message>
    <message>
        <source>Attention LED On</source>
        <translation>LED d’attention allumée</translation>
    </message>
    <message>
        <source>Available Processing Units</source>
        <translation>Unités de traitement disponibles</translation>
    </message>
    <message>
        <source>Available Memory</source>
        <translation>Mémoire disponible</translation>
    </message>
</context>
<context>
    <name>lodestar::MSListCell</name>
    <message>
        <source>error</source>
        <translation>erreur</translation>
    </message>
    <message>
        <source>attention LED on</source>
        <translation>LED d’attention allumée</translation>
    </message>
</context>
<context>
    <name>lodestar::MSListViewController</name>
    <message>
        <source>System menu</source>
        <translation>Menu du système</translation>
    </message>
    <message>
        <source>Managed System</source>
        <translation>Système géré</translation>
    </message>
    <message>
        <source>System Information</source>
        <translation>Informations système</translation>
    </message>
    <message>
        <source>Performance Monitoring</source>
        <translation>Performances</translation>
    </message>
    <message>
        <source>Logical Partitions</source>
        <translation>Partitions logiques</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>lodestar::MSOverViewController</name>
    <message>
        <source>Managed System</source>
        <translation>Système géré</translation>
    </message>
    <message>
        <source>Performance Monitoring</source>
        <translation>Performances</translation>
    </message>
    <message>
        <source>Logical Partitions</source>
        <translation>Partitions logiques</translation>
    </message>
    <message>
        <source>System Information</source>
        <translation>Informations système</translation>
    </message>
</context>
<context>
    <name>lodestar::OpenSourceViewController</name>
    <message>
        <source>Open Source Licenses</source>
        <translation>Licences open source</translation>
    </message>
</context>
<context>
    <name>lodestar::OrnisLicenseViewController</name>
    <message>
        <source>Ornis License</source>
        <translation>Licence Ornis</translation>
    </message>
</context>
<context>
    <name>lodestar::PCMViewController</name>
    <message>
        <source>Fetching performance data...</source>
        <translation>Lecture des performances...</translation>
    </message>
    <message>
        <source>updating...</source>
        <translation>lecture...</translation>
    </message>
    <message>
        <source>No performance data available.</source>
        <translation>Aucune donnée de performance.</translation>
    </message>
</context>
<context>
    <name>lodestar::PartitionDetailViewController</name>
    <message>
        <source>Main Information</source>
        <translation>Informations principales</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
</context>
<context>
    <name>lodestar::PasswordCreationViewController</name>
    <message>
        <source>Set Password</source>
        <translation>Définir le code</translation>
    </message>
    <message>
        <source>Any characters, any length.</source>
        <translation>Tous caractères, toute longueur.</translation>
    </message>
    <message>
        <source>%1. The passcode was not changed.</source>
        <translation>%1. Le code n’a pas été changé.</translation>
    </message>
    <message>
        <source>Please reenter password</source>
        <translation>Saisissez le code à nouveau</translation>
    </message>
    <message>
        <source>%1. The passcode was not saved.</source>
        <translation>%1. Le code n’a pas été enregistré.</translation>
    </message>
    <message>
        <source>Password Saved</source>
        <translation>Code enregistré</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Échec</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>lodestar::PerformanceText</name>
    <message>
        <source>%1, %2</source>
        <extracomment>%1 a day, %2 a time of day</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <extracomment>%1 as in &quot;lowest 2.80&quot;, %2 a time of day</extracomment>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>%1 all along</source>
        <extracomment>%1 a number</extracomment>
        <translation>constant %1</translation>
    </message>
    <message>
        <source>lowest %1</source>
        <translation>minimum %1</translation>
    </message>
    <message>
        <source>mean %1</source>
        <translation>moyenne %1</translation>
    </message>
    <message>
        <source>highest %1</source>
        <translation>maximum %1</translation>
    </message>
    <message>
        <source>last %1</source>
        <translation>dernier %1</translation>
    </message>
    <message>
        <source>all along</source>
        <translation>constant</translation>
    </message>
    <message>
        <source>Total Processors</source>
        <translation>Processeurs, total</translation>
    </message>
    <message>
        <source>Processors Allocated</source>
        <translation>Processeurs alloués</translation>
    </message>
    <message>
        <source>Processors Used</source>
        <translation>Processeurs utilisés</translation>
    </message>
    <message>
        <source>Total Memory</source>
        <translation>Mémoire totale</translation>
    </message>
    <message>
        <source>Memory Allocated</source>
        <translation>Mémoire allouée</translation>
    </message>
    <message>
        <source>Memory Used</source>
        <translation>Mémoire utilisée</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Allocated</source>
        <translation>Alloué</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Utilisé</translation>
    </message>
    <message numerus="yes">
        <source>%Ln samples had no values and are left out</source>
        <translation>
            <numerusform>%Ln relevé sans valeurs est omis</numerusform>
            <numerusform>%Ln relevés sans valeurs sont omis</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln samples had no time and are left out of the chart</source>
        <translation>
            <numerusform>%Ln relevé sans heure est omis du graphique</numerusform>
            <numerusform>%Ln relevés sans heure sont omis du graphique</numerusform>
        </translation>
    </message>
    <message>
        <source>total %1</source>
        <translation>total %1</translation>
    </message>
    <message>
        <source>allocated %1</source>
        <translation>alloué %1</translation>
    </message>
    <message>
        <source>used %1</source>
        <translation>utilisé %1</translation>
    </message>
</context>
<context>
    <name>lodestar::PieChartView</name>
    <message>
        <source>, </source>
        <extracomment>Between the parts of a chart as they are read out.</extracomment>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>lodestar::PlotChartView</name>
    <message>
        <source>%1 %2</source>
        <extracomment>A data set&apos;s name and its latest value, as in &quot;Processors Used 6.5&quot;.</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>, </source>
        <extracomment>Between the data sets of a chart as they are read out.</extracomment>
        <translation>, </translation>
    </message>
    <message>
        <source>%1, %2: %3</source>
        <extracomment>A data set&apos;s name, the label of one of its values, and the value.</extracomment>
        <translation>%1, %2&#xa0;: %3</translation>
    </message>
</context>
<context>
    <name>lodestar::RGListCell</name>
    <message>
        <source>cyan</source>
        <translation>cyan</translation>
    </message>
    <message>
        <source>green</source>
        <translation>vert</translation>
    </message>
    <message>
        <source>red</source>
        <translation>rouge</translation>
    </message>
    <message>
        <source>purple</source>
        <translation>violet</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>bleu</translation>
    </message>
    <message>
        <source>grey</source>
        <translation>gris</translation>
    </message>
    <message>
        <source>yellow</source>
        <translation>jaune</translation>
    </message>
    <message>
        <source>orange</source>
        <translation>orange</translation>
    </message>
    <message>
        <source>pink</source>
        <translation>rose</translation>
    </message>
    <message numerus="yes">
        <source>%n Resources</source>
        <translation>
            <numerusform>%n ressource</numerusform>
            <numerusform>%n ressources</numerusform>
        </translation>
    </message>
    <message>
        <source>updating...</source>
        <translation>lecture...</translation>
    </message>
    <message>
        <source>%1 good, %2 off, %3 alert, %4 error</source>
        <extracomment>A resource group&apos;s states, read aloud: counts</extracomment>
        <translation>%1 bons, %2 arrêtés, %3 en alerte, %4 en erreur</translation>
    </message>
</context>
<context>
    <name>lodestar::ReadingController</name>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Copy All</source>
        <translation>Tout copier</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>lodestar::ReadingMark</name>
    <message>
        <source>%1 missing</source>
        <extracomment>%1 the name of a feed, as in &quot;partitions&quot;</extracomment>
        <translation>%1 illisibles</translation>
    </message>
    <message>
        <source>offline %1</source>
        <extracomment>%1 as in &quot;since 02:58&quot;</extracomment>
        <translation>hors ligne %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln of 6 missing</source>
        <extracomment>%n of the six feeds</extracomment>
        <translation>
            <numerusform>%Ln sur 6 manque</numerusform>
            <numerusform>%Ln sur 6 manquent</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::ReasonText</name>
    <message>
        <source>Refresh once more.</source>
        <translation>Actualisez encore une fois.</translation>
    </message>
    <message>
        <source>Check the address.</source>
        <translation>Vérifiez l’adresse.</translation>
    </message>
    <message>
        <source>Check the address; it may be another service.</source>
        <translation>Vérifiez l’adresse&#xa0;; c’est peut-être un autre service.</translation>
    </message>
    <message>
        <source>Tell us through feedback.</source>
        <translation>Signalez-le-nous dans les commentaires.</translation>
    </message>
    <message>
        <source>Refresh once more. A busy console often answers the second time.</source>
        <translation>Actualisez encore une fois. Une console occupée répond souvent la deuxième fois.</translation>
    </message>
    <message>
        <source>If the same feed fails again, restart the console’s web service.</source>
        <translation>Si le même flux échoue encore, redémarrez le service web de la console.</translation>
    </message>
    <message>
        <source>nothing within 10 s</source>
        <translation>rien en 10&#xa0;s</translation>
    </message>
    <message>
        <source>name not found</source>
        <translation>nom introuvable</translation>
    </message>
    <message>
        <source>connection refused</source>
        <translation>connexion refusée</translation>
    </message>
    <message>
        <source>connection broke off</source>
        <translation>connexion coupée</translation>
    </message>
    <message>
        <source>redirected too often</source>
        <translation>trop de redirections</translation>
    </message>
    <message>
        <source>answer not understood</source>
        <translation>réponse incomprise</translation>
    </message>
    <message>
        <source>answer too large</source>
        <translation>réponse trop grande</translation>
    </message>
    <message>
        <source>no secure connection</source>
        <translation>pas de connexion sécurisée</translation>
    </message>
    <message>
        <source>its certificate changed</source>
        <translation>son certificat a changé</translation>
    </message>
    <message>
        <source>wrong user or password</source>
        <translation>utilisateur ou mot de passe incorrect</translation>
    </message>
    <message>
        <source>the console failed to answer (%1)</source>
        <extracomment>%1 an HTTP status</extracomment>
        <translation>la console n’a pas pu répondre (%1)</translation>
    </message>
    <message>
        <source>answered %1</source>
        <extracomment>%1 an HTTP status</extracomment>
        <translation>a répondu %1</translation>
    </message>
    <message>
        <source>no session key</source>
        <translation>pas de clé de session</translation>
    </message>
    <message>
        <source>It did not answer within 10 s.</source>
        <translation>Elle n’a pas répondu en 10&#xa0;s.</translation>
    </message>
    <message>
        <source>Its name has no address.</source>
        <translation>Son nom n’a pas d’adresse.</translation>
    </message>
    <message>
        <source>Something is there, but refuses port 12443.</source>
        <translation>Quelque chose est là, mais refuse le port 12443.</translation>
    </message>
    <message>
        <source>It broke off while answering.</source>
        <translation>Elle a interrompu sa réponse.</translation>
    </message>
    <message>
        <source>It sent Lodestar from one address to the next.</source>
        <translation>Elle a renvoyé Lodestar d’une adresse à l’autre.</translation>
    </message>
    <message>
        <source>What it answered is not HTTP.</source>
        <translation>Sa réponse n’est pas du HTTP.</translation>
    </message>
    <message>
        <source>It answered more than Lodestar takes.</source>
        <translation>Elle a répondu plus que Lodestar n’accepte.</translation>
    </message>
    <message>
        <source>It offers no secure connection that this device accepts.</source>
        <translation>Elle n’offre aucune connexion sécurisée que cet appareil accepte.</translation>
    </message>
    <message>
        <source>Its certificate changed in the middle of the attempt. No password was sent.</source>
        <translation>Son certificat a changé pendant la tentative. Aucun mot de passe n’a été envoyé.</translation>
    </message>
    <message>
        <source>It refused the user or the password.</source>
        <translation>Elle a refusé l’utilisateur ou le mot de passe.</translation>
    </message>
    <message>
        <source>It answered with an error of its own.</source>
        <translation>Elle a répondu par une erreur interne.</translation>
    </message>
    <message>
        <source>It gave an answer that was not expected.</source>
        <translation>Elle a donné une réponse inattendue.</translation>
    </message>
    <message>
        <source>It accepted the logon but gave no key.</source>
        <translation>Elle a accepté l’identification mais n’a pas donné de clé.</translation>
    </message>
    <message>
        <source>Check that this device is on the right network.</source>
        <translation>Vérifiez que cet appareil est sur le bon réseau.</translation>
    </message>
    <message>
        <source>A firewall may drop port 12443.</source>
        <translation>Un pare-feu bloque peut-être le port 12443.</translation>
    </message>
    <message>
        <source>Refresh in some minutes; the console may be starting.</source>
        <translation>Actualisez dans quelques minutes&#xa0;; la console démarre peut-être.</translation>
    </message>
    <message>
        <source>Check the spelling of the address.</source>
        <translation>Vérifiez l’orthographe de l’adresse.</translation>
    </message>
    <message>
        <source>Check this device&apos;s network.</source>
        <translation>Vérifiez le réseau de cet appareil.</translation>
    </message>
    <message>
        <source>Try the number instead of the name.</source>
        <translation>Essayez l’adresse IP au lieu du nom.</translation>
    </message>
    <message>
        <source>The console may be starting; refresh in some minutes.</source>
        <translation>La console démarre peut-être&#xa0;; actualisez dans quelques minutes.</translation>
    </message>
    <message>
        <source>If it stays so, look at what lies between here and the console.</source>
        <translation>Si cela dure, regardez ce qu’il y a entre ici et la console.</translation>
    </message>
    <message>
        <source>Update the console: its TLS may be too old.</source>
        <translation>Mettez la console à jour&#xa0;: son TLS est peut-être trop ancien.</translation>
    </message>
    <message>
        <source>Before you refresh, compare the new fingerprint below with the one that the console shows.</source>
        <translation>Avant d’actualiser, comparez la nouvelle empreinte ci-dessous avec celle que montre la console.</translation>
    </message>
    <message>
        <source>If they agree, refresh. The new one is then taken.</source>
        <translation>Si elles concordent, actualisez. La nouvelle est alors prise.</translation>
    </message>
    <message>
        <source>If not, something else answers at this address. Do not refresh; ask those who run the network.</source>
        <translation>Sinon, autre chose répond à cette adresse. N’actualisez pas&#xa0;; demandez aux responsables du réseau.</translation>
    </message>
    <message>
        <source>Check the user on the console; it may be locked.</source>
        <translation>Vérifiez l’utilisateur sur la console&#xa0;; il est peut-être verrouillé.</translation>
    </message>
    <message>
        <source>Delete the console and add it with the new password.</source>
        <translation>Supprimez la console et ajoutez-la avec le nouveau mot de passe.</translation>
    </message>
</context>
<context>
    <name>lodestar::ReportContent</name>
    <message>
        <source>not known</source>
        <translation>inconnu</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>Gravité</translation>
    </message>
    <message>
        <source>Call home</source>
        <translation>Appel au fabricant</translation>
    </message>
    <message>
        <source>intended</source>
        <translation>prévu</translation>
    </message>
    <message>
        <source>not intended</source>
        <translation>pas prévu</translation>
    </message>
    <message>
        <source>, extension %1</source>
        <extracomment>After a reference code; %1 its extension</extracomment>
        <translation>, extension %1</translation>
    </message>
    <message>
        <source>Reference code</source>
        <translation>Code de référence</translation>
    </message>
    <message>
        <source>Firmware fix</source>
        <translation>Correctif du micrologiciel</translation>
    </message>
    <message>
        <source>First reported</source>
        <translation>Premier signalement</translation>
    </message>
    <message>
        <source>Last reported</source>
        <translation>Dernier signalement</translation>
    </message>
    <message>
        <source>Reported</source>
        <translation>Signalé</translation>
    </message>
    <message>
        <source>Part %1</source>
        <translation>Pièce %1</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Emplacement</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Console</source>
        <translation>Console</translation>
    </message>
    <message>
        <source>Serial</source>
        <translation>N° de série</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lu</translation>
    </message>
    <message>
        <source>Made by %1</source>
        <extracomment>%1 this application with its version</extracomment>
        <translation>Fait par %1</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Système</translation>
    </message>
    <message>
        <source>Type and model</source>
        <translation>Type et modèle</translation>
    </message>
    <message>
        <source>Serviceable event #%1</source>
        <extracomment>%1 the event&apos;s number</extracomment>
        <translation>Événement de service #%1</translation>
    </message>
    <message>
        <source>System %1</source>
        <extracomment>%1 a managed system</extracomment>
        <translation>Système %1</translation>
    </message>
    <message>
        <source>Attention LED On</source>
        <translation>LED d’attention allumée</translation>
    </message>
    <message>
        <source>Available Processing Units</source>
        <translation>Unités de traitement disponibles</translation>
    </message>
    <message>
        <source>Available Memory</source>
        <translation>Mémoire disponible</translation>
    </message>
    <message>
        <source>[address left out]</source>
        <translation>[adresse omise]</translation>
    </message>
    <message numerus="yes">
        <source>%Ln more times</source>
        <translation>
            <numerusform>encore %Ln fois</numerusform>
            <numerusform>encore %Ln fois</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::ReportListViewController</name>
    <message>
        <source>Reports</source>
        <translation>Rapports</translation>
    </message>
</context>
<context>
    <name>lodestar::ReportViewController</name>
    <message>
        <source>Send</source>
        <translation>Envoyer</translation>
    </message>
    <message>
        <source>Report Exported</source>
        <translation>Rapport exporté</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The report could not be exported</source>
        <translation>Le rapport n’a pas pu être exporté</translation>
    </message>
    <message>
        <source>Delete this report?</source>
        <translation>Supprimer ce rapport&#xa0;?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>The report could not be deleted</source>
        <translation>Le rapport n’a pas pu être supprimé</translation>
    </message>
</context>
<context>
    <name>lodestar::SEDetailViewController</name>
    <message>
        <source>Main Information</source>
        <translation>Informations principales</translation>
    </message>
    <message>
        <source>Associated FRUs</source>
        <translation>FRU associées</translation>
    </message>
    <message>
        <source>Event Details</source>
        <translation>Détails de l’événement</translation>
    </message>
    <message>
        <source>Problem Number</source>
        <translation>Numéro du problème</translation>
    </message>
    <message>
        <source>Call Home Intended</source>
        <translation>Appel au fabricant prévu</translation>
    </message>
    <message>
        <source>Prob Mgmt Hardware Record</source>
        <translation>Fiche matérielle du problème</translation>
    </message>
    <message>
        <source>Approval State</source>
        <translation>État d’approbation</translation>
    </message>
    <message>
        <source>Reference Code</source>
        <translation>Code de référence</translation>
    </message>
    <message>
        <source>Reference Code Extension</source>
        <translation>Extension du code de référence</translation>
    </message>
    <message>
        <source>System Reference Code</source>
        <translation>Code de référence système</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Firmware Fix</source>
        <translation>Correctif du micrologiciel</translation>
    </message>
    <message>
        <source>First Reported Time</source>
        <translation>Premier signalement</translation>
    </message>
    <message>
        <source>Last Reported Time</source>
        <translation>Dernier signalement</translation>
    </message>
    <message>
        <source>Data Event Time</source>
        <translation>Heure de l’événement</translation>
    </message>
    <message>
        <source>Reporting Console Name</source>
        <translation>Nom de la console émettrice</translation>
    </message>
    <message>
        <source>Reporting MTMS</source>
        <translation>MTMS émetteur</translation>
    </message>
    <message>
        <source>Failing MTMS</source>
        <translation>MTMS en panne</translation>
    </message>
    <message>
        <source>Event Text</source>
        <translation>Texte de l’événement</translation>
    </message>
    <message>
        <source>Event Severity</source>
        <translation>Gravité de l’événement</translation>
    </message>
    <message>
        <source>Notification Type</source>
        <translation>Type de notification</translation>
    </message>
    <message>
        <source>Duplicate Count</source>
        <translation>Nombre de doublons</translation>
    </message>
    <message>
        <source>Mgmt Console Name</source>
        <translation>Nom de la console de gestion</translation>
    </message>
    <message>
        <source>Mgmt Console MTMS</source>
        <translation>MTMS de la console de gestion</translation>
    </message>
    <message>
        <source>Part Number</source>
        <translation>Numéro de pièce</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>Classe</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Location Code</source>
        <translation>Code d’emplacement</translation>
    </message>
    <message>
        <source>Previously Replaced</source>
        <translation>Déjà remplacée</translation>
    </message>
    <message>
        <source>Replaced Timestamp</source>
        <translation>Date de remplacement</translation>
    </message>
    <message>
        <source>Replacement Group</source>
        <translation>Groupe de remplacement</translation>
    </message>
</context>
<context>
    <name>lodestar::SEListViewController</name>
    <message>
        <source>N/A</source>
        <translation>N/D</translation>
    </message>
</context>
<context>
    <name>lodestar::SearchBarOutlet</name>
    <message>
        <source>All</source>
        <translation>Tout</translation>
    </message>
</context>
<context>
    <name>lodestar::Sentence</name>
    <message>
        <source>, </source>
        <extracomment>Between the parts of a sentence or of a list</extracomment>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>lodestar::ServiceReportController</name>
    <message>
        <source>Service Report</source>
        <translation>Rapport de service</translation>
    </message>
</context>
<context>
    <name>lodestar::SettingsViewController</name>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
</context>
<context>
    <name>lodestar::VIOSDetailViewController</name>
    <message>
        <source>VIOS Details</source>
        <translation>Détails VIOS</translation>
    </message>
</context>
<context>
    <name>lodestar::VIOSViewController</name>
    <message>
        <source>Check</source>
        <translation>Vérifier</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>Favori</translation>
    </message>
</context>
<context>
    <name>lodestar::VersionViewController</name>
    <message>
        <source>Release Notes</source>
        <translation>Notes de version</translation>
    </message>
</context>
<context>
    <name>lodestar::WatchConsolesViewController</name>
    <message>
        <source>Consoles</source>
        <translation>Consoles</translation>
    </message>
</context>
<context>
    <name>lodestar::WatchMessages</name>
    <message>
        <source>%1. %2</source>
        <extracomment>Two sentences, the first without its full stop.</extracomment>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Between %1 and %2</source>
        <extracomment>Times of day, as a sentence or with a console before it.</extracomment>
        <translation>Entre %1 et %2</translation>
    </message>
    <message>
        <source>%1, between %2 and %3</source>
        <translation>%1, entre %2 et %3</translation>
    </message>
    <message>
        <source>Last read in full at %1</source>
        <translation>Dernière lecture complète&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 is offline</source>
        <extracomment>%1 a console</extracomment>
        <translation>%1 est hors ligne</translation>
    </message>
    <message>
        <source>call home</source>
        <translation>appel au fabricant</translation>
    </message>
    <message>
        <source>%1: #%2 opened</source>
        <extracomment>%1 a console, %2 the number of an event</extracomment>
        <translation>%1&#xa0;: #%2 ouvert</translation>
    </message>
    <message>
        <source>%1 is incomplete</source>
        <translation>%1 est incomplet</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 a console, %2 as in &quot;Partitions not read&quot;
----------
%1 a console, %2 as in &quot;3 things got worse&quot;</extracomment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 stopped</source>
        <translation>%1 à l’arrêt</translation>
    </message>
    <message>
        <source>%1: LED on</source>
        <translation>%1&#xa0;: LED allumée</translation>
    </message>
    <message>
        <source>%1 is in error</source>
        <translation>%1 est en erreur</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>hors ligne</translation>
    </message>
    <message>
        <source>%1 incomplete</source>
        <translation>%1 en état incomplet</translation>
    </message>
    <message>
        <source>not read in full</source>
        <translation>non lu en entier</translation>
    </message>
    <message>
        <source>LED on at %1</source>
        <translation>LED allumée sur %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new events</source>
        <translation>
            <numerusform>%Ln nouvel événement</numerusform>
            <numerusform>%Ln nouveaux événements</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 in error</source>
        <translation>%1 en erreur</translation>
    </message>
    <message numerus="yes">
        <source>%Ln consoles offline</source>
        <translation>
            <numerusform>%Ln console hors ligne</numerusform>
            <numerusform>%Ln consoles hors ligne</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln systems in error</source>
        <translation>
            <numerusform>%Ln système en erreur</numerusform>
            <numerusform>%Ln systèmes en erreur</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln systems incomplete</source>
        <translation>
            <numerusform>%Ln système incomplet</numerusform>
            <numerusform>%Ln systèmes incomplets</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln IO servers in error</source>
        <translation>
            <numerusform>%Ln serveur E/S en erreur</numerusform>
            <numerusform>%Ln serveurs E/S en erreur</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln partitions in error</source>
        <translation>
            <numerusform>%Ln partition en erreur</numerusform>
            <numerusform>%Ln partitions en erreur</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln consoles not read in full</source>
        <translation>
            <numerusform>%Ln console non lue en entier</numerusform>
            <numerusform>%Ln consoles non lues en entier</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln IO servers stopped</source>
        <translation>
            <numerusform>%Ln serveur E/S arrêté</numerusform>
            <numerusform>%Ln serveurs E/S arrêtés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln partitions stopped</source>
        <translation>
            <numerusform>%Ln partition arrêtée</numerusform>
            <numerusform>%Ln partitions arrêtées</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln LEDs on</source>
        <translation>
            <numerusform>%Ln LED allumée</numerusform>
            <numerusform>%Ln LED allumées</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln groups in error</source>
        <translation>
            <numerusform>%Ln groupe en erreur</numerusform>
            <numerusform>%Ln groupes en erreur</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln things got worse</source>
        <translation>
            <numerusform>%Ln point a empiré</numerusform>
            <numerusform>%Ln points ont empiré</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 on %Ln consoles</source>
        <extracomment>%1 as in &quot;7 things got worse&quot;, %n consoles</extracomment>
        <translation>
            <numerusform>%1 sur %Ln console</numerusform>
            <numerusform>%1 sur %Ln consoles</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln things remain</source>
        <translation>
            <numerusform>Il reste %Ln point</numerusform>
            <numerusform>Il reste %Ln points</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is online again</source>
        <translation>%1 est de nouveau en ligne</translation>
    </message>
    <message>
        <source>%1: %2 read again</source>
        <extracomment>%1 a console, %2 the name of a feed, as in &quot;Partitions&quot;</extracomment>
        <translation>%1&#xa0;: %2 de nouveau lisibles</translation>
    </message>
    <message>
        <source>%1: LED off</source>
        <translation>%1&#xa0;: LED éteinte</translation>
    </message>
    <message>
        <source>%1 is %2 again</source>
        <extracomment>%1 a name, %2 the console&apos;s word for a state</extracomment>
        <translation>%1 est de nouveau %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln things got better</source>
        <translation>
            <numerusform>%Ln point s’est amélioré</numerusform>
            <numerusform>%Ln points se sont améliorés</numerusform>
        </translation>
    </message>
    <message>
        <source>After %1</source>
        <extracomment>%1 a console, %2 as in &quot;42 min&quot;</extracomment>
        <translation>Après %1</translation>
    </message>
    <message>
        <source>%1, after %2</source>
        <translation>%1, après %2</translation>
    </message>
    <message>
        <source>In the night, %1</source>
        <extracomment>%1 as in &quot;5 things got worse&quot;</extracomment>
        <translation>Cette nuit, %1</translation>
    </message>
    <message>
        <source>None of them needs attention any more</source>
        <translation>Plus rien n’y demande votre attention</translation>
    </message>
    <message numerus="yes">
        <source>%Ln of them still need attention</source>
        <translation>
            <numerusform>%Ln demande encore votre attention</numerusform>
            <numerusform>%Ln demandent encore votre attention</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln consoles need attention</source>
        <translation>
            <numerusform>%Ln console demande votre attention</numerusform>
            <numerusform>%Ln consoles demandent votre attention</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing known needs attention</source>
        <translation>Rien de connu ne demande votre attention</translation>
    </message>
    <message>
        <source>Open Lodestar to see more</source>
        <translation>Ouvrez Lodestar pour en savoir plus</translation>
    </message>
    <message>
        <source>Lodestar can reach you</source>
        <translation>Lodestar peut vous joindre</translation>
    </message>
    <message>
        <source>This is how a message looks</source>
        <translation>Voici à quoi ressemble un message</translation>
    </message>
</context>
<context>
    <name>lodestar::WatchText</name>
    <message>
        <source>every %1</source>
        <extracomment>%1 as in &quot;15 min&quot;</extracomment>
        <translation>toutes les %1</translation>
    </message>
    <message>
        <source>off</source>
        <translation>inactive</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>open</source>
        <translation>ouverts</translation>
    </message>
    <message>
        <source>open, call home</source>
        <translation>ouverts, signalés</translation>
    </message>
    <message>
        <source>all %1</source>
        <translation>toutes (%1)</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 are left out until you refresh them by hand: their certificates changed.</source>
        <extracomment>%1 the names of so many consoles</extracomment>
        <translation>
            <numerusform>%1 est laissée de côté jusqu’à une actualisation à la main&#xa0;: son certificat a changé.</numerusform>
            <numerusform>%1 sont laissées de côté jusqu’à une actualisation à la main&#xa0;: leurs certificats ont changé.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln h</source>
        <translation>
            <numerusform>%Ln&#xa0;h</numerusform>
            <numerusform>%Ln&#xa0;h</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln min</source>
        <translation>
            <numerusform>%Ln&#xa0;min</numerusform>
            <numerusform>%Ln&#xa0;min</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::WatchViewController</name>
    <message>
        <source>Watch</source>
        <translation>Surveillance</translation>
    </message>
    <message>
        <source>This system shows no messages. Attention still counts.</source>
        <translation>Ce système n’affiche pas de messages. «&#xa0;Attention&#xa0;» continue de compter.</translation>
    </message>
    <message>
        <source>Reading goes on. At %1 one message sums up the night, if anything got worse.</source>
        <extracomment>%1 a time of day</extracomment>
        <translation>La lecture continue. À %1, un message résume la nuit si quelque chose a empiré.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Every</source>
        <translation>Intervalle</translation>
    </message>
    <message>
        <source>New Events</source>
        <translation>Nouveaux événements</translation>
    </message>
</context>
<context>
    <name>lodestar::WindowDialogs</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Watches Corvel consoles and changes nothing.</source>
        <translation>Surveille des consoles Corvel et ne change rien.</translation>
    </message>
    <message>
        <source>Keep everything in this folder.</source>
        <translation>Tout garder dans ce dossier.</translation>
    </message>
    <message>
        <source>Offer to send feedback and crash reports to this https address.</source>
        <translation>Proposer d’envoyer commentaires et rapports de plantage à cette adresse https.</translation>
    </message>
    <message>
        <source>Fill the screen.</source>
        <translation>Remplir l’écran.</translation>
    </message>
    <message>
        <source>Leave once the first screen is drawn, for measuring.</source>
        <translation>Quitter une fois le premier écran dessiné, pour mesurer.</translation>
    </message>
    <message>
        <source>Speak this language instead of the system&apos;s (en, de, fr, es, ja, ar).</source>
        <extracomment>In brackets codes, which stay as they are</extracomment>
        <translation>Parler cette langue au lieu de celle du système (en, de, fr, es, ja, ar).</translation>
    </message>
</context>
</TS>
