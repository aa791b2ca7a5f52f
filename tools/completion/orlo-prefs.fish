# Completion of orlo-prefs for fish.

# The words before the cursor without the options that stand before the command.
function __orlo_prefs_words
    set -l words (commandline -opc)
    set -e words[1]
    while set -q words[1]
        switch $words[1]
            case --edition --app-name --store --plugin --language
                set -e words[1]
                set -q words[1]; and set -e words[1]
            case '-*'
                set -e words[1]
            case '*'
                break
        end
    end
    string join \n -- $words
end

function __orlo_prefs_needs_command
    test -z "$(__orlo_prefs_words)"
end

# The command is one of those given, and nothing but it was typed yet.
function __orlo_prefs_after
    set -l words (__orlo_prefs_words)
    test (count $words) -eq 1; and contains -- $words[1] $argv
end

# What a command lists, with the options that choose that.
function __orlo_prefs_tool
    set -l words (commandline -opc)
    set -l command $words[1]
    for index in (seq 2 (count $words))
        if contains -- $words[$index] --edition --store --plugin
            set -a command $words[$index] $words[(math $index + 1)]
        end
    end
    $command $argv 2>/dev/null
end

function __orlo_prefs_keys
    __orlo_prefs_tool list | string match -r '^  \S.*' | string trim -l | string replace -r '  .*' '' | sort -u
end

function __orlo_prefs_profiles
    __orlo_prefs_tool profile list | string replace -r '  \(site\)$' ''
end

function __orlo_prefs_names_profile
    set -l words (__orlo_prefs_words)
    test (count $words) -eq 2; and test $words[1] = profile; and test $words[2] != list
end

complete -c orlo-prefs -f
complete -c orlo-prefs -n __orlo_prefs_needs_command -l edition -x -a 'essentials design professional enterprise' -d 'The edition to be'
complete -c orlo-prefs -n __orlo_prefs_needs_command -l app-name -x -d 'The name of the application'
complete -c orlo-prefs -n __orlo_prefs_needs_command -l store -r -F -d 'Where the preferences are kept'
complete -c orlo-prefs -n __orlo_prefs_needs_command -l plugin -r -F -d 'The preferences plug-in'
complete -c orlo-prefs -n __orlo_prefs_needs_command -l language -x -a 'en zh ja ko user' -d 'The language of the messages'
complete -c orlo-prefs -n __orlo_prefs_needs_command -l yes -d 'Agree to what would be asked'
complete -c orlo-prefs -n __orlo_prefs_needs_command -l version -d 'Print the version'
complete -c orlo-prefs -l help -d 'Tell more'
for command in 'list	Show all settings' 'get	Print a value' 'set	Store a value' 'reset	Back to the default' \
    'diff	What differs from the defaults' 'export	Write all settings' 'import	Store settings of a file' \
    'profile	Keep settings under a name' 'log	What was changed when' 'undo	Take saves back' \
    'check	Find faults' 'schema	Print a schema for editors' 'script	Run a script'
    complete -c orlo-prefs -n __orlo_prefs_needs_command -a "$(string escape -- $command)"
end
complete -c orlo-prefs -n '__orlo_prefs_after get set reset log' -a '(__orlo_prefs_keys)'
complete -c orlo-prefs -n '__orlo_prefs_after list log' -l json -d 'For programs'
complete -c orlo-prefs -n '__orlo_prefs_after list' -l markdown -d 'The catalogue'
complete -c orlo-prefs -n '__orlo_prefs_after reset' -l all -d 'Every setting'
complete -c orlo-prefs -n '__orlo_prefs_after import undo' -l dry-run -d 'Only tell what would change'
complete -c orlo-prefs -n '__orlo_prefs_after check' -l site -r -F -d 'Judge a file before it is installed'
complete -c orlo-prefs -n '__orlo_prefs_after profile' -a 'list save apply delete'
complete -c orlo-prefs -n __orlo_prefs_names_profile -a '(__orlo_prefs_profiles)'
complete -c orlo-prefs -n '__fish_seen_subcommand_from profile' -l changed -d 'What differs from the defaults'
complete -c orlo-prefs -n '__fish_seen_subcommand_from profile' -l module -x -d 'Those of a module'
complete -c orlo-prefs -n '__fish_seen_subcommand_from profile' -l dry-run -d 'Only tell what would change'
complete -c orlo-prefs -n '__orlo_prefs_after export import script' -F
